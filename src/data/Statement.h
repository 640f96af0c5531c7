// A statement object: the text of one statement, and the rows it gave. Screens take one by name from
// a data module, or make a private one for themselves.
#pragma once

#include "data/Connection.h"
#include "data/TextLines.h"
#include "platform/sqlserver/RowSet.h"

#include <QByteArray>
#include <QString>

#include <vector>

/// A cell as the program shows it: date and time as "yyyy/mm/dd hh:mm:ss", without the time at
/// midnight, so that what stands before the first blank is the date; numbers with a ".".
QString cellText(const velcro::sql::RowSet& rows, std::size_t row, std::size_t column);

/// One field of the current row. Valid until the statement moves or closes.
class Field
{
public:
    bool IsNull() const;
    QString AsString() const; // NULL is blank
    /// NULL and blank are 0; throws ConversionError for text that is no number.
    int AsInteger() const;
    double AsFloat() const;
    QByteArray AsBytes() const;
    QString name() const;

private:
    friend class Statement;
    Field(const Statement& statement, std::size_t column)
        : statement_(&statement)
        , column_(column) {}

    const Statement* statement_;
    std::size_t column_;
};

/// A value bound to a :Name of the text.
class BoundValue
{
public:
    explicit BoundValue(velcro::sql::Parameter& parameter)
        : parameter_(&parameter) {}
    void setString(const QString& value);
    void setInteger(qint64 value);
    void setFloat(double value);
    void setBytes(const QByteArray& value);
    void setNull();

private:
    velcro::sql::Parameter* parameter_;
};

class Statement
{
public:
    /// Kept for the life of the statement object.
    enum class Use {
        Reader,  // takes the text as it stands: no parameters
        Private, // made and freed by a routine for itself
        Writer,  // the one of a module that writes
    };

    explicit Statement(Connection& connection, Use use = Use::Private);
    ~Statement();
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    TextLines SQL;
    Connection& connection() const { return *connection_; }

    /// Closes, and takes these lines as its text, without parameters.
    void setText(const QStringList& lines);
    /// Runs SQL, fetches the whole result and stands on its first row. Throws SqlError. Reopens
    /// when open.
    void Open();
    /// setText and Open in one.
    void Open(const QStringList& lines);
    void Close();
    /// Runs SQL for its effect. Throws SqlError.
    void ExecSQL();

    bool Active() const { return active_; }
    bool IsEmpty() const { return RecordCount() == 0; }
    bool Bof() const { return bof_; }
    bool Eof() const { return eof_; }
    void First();
    void Prior();
    void Next();
    void Last();
    /// Number of the current row, 1 upward; 0 without rows.
    int RecNo() const { return IsEmpty() ? 0 : int(row_) + 1; }
    void setRecNo(int recNo);
    int RecordCount() const { return int(rows_.rowCount()); }
    qint64 RowsAffected() const { return affected_; }

    /// Goes to the first row whose field reads as the value; case counts. False, and the row stays,
    /// when there is none.
    bool Locate(const QString& field, const QString& value);
    bool Locate(const QString& field, qint64 value);

    /// Case of the name does not count. Throws VelmaraError for a name that is no column, and when
    /// there is no row.
    Field FieldByName(const QString& name) const;
    /// By position, from 0.
    Field Fields(int index) const;
    bool HasField(const QString& name) const;

    /// Throws VelmaraError when the text holds no such :Name, or on a reader.
    BoundValue ParamByName(const QString& name);

    /// The rows for a grid model; copies share them.
    const velcro::sql::RowSet& rows() const { return rows_; }

private:
    friend class Connection;
    friend class Field;

    Connection* connection_;
    Use use_;
    velcro::sql::RowSet rows_;
    std::vector<velcro::sql::Parameter> parameters_;
    std::size_t row_ = 0;
    qint64 affected_ = -1;
    bool active_ = false;
    bool bof_ = true;
    bool eof_ = true;
};
