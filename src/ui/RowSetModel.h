// Rows of a result for a grid, that can be edited and filtered in memory. The rows stay as they were
// fetched: a cell becomes text only when it is painted, sorting and filtering move row numbers, and
// what is edited lies over the rows.
#pragma once

#include "platform/sqlserver/RowSet.h"

#include <QAbstractTableModel>
#include <QDateTime>
#include <QString>

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <variant>
#include <vector>

namespace velcro::ui {

/// What the cells of a column hold.
enum class CellType {
    AsRead, // as the column of the result has it
    Text,
    Whole,
    Decimal,
    Date, // with or without a time; in text it reads yyyy/mm/dd or yyyy-mm-dd
    Tick, // "Y" or anything else
};

/// A cell's value by its type; a text that does not read as the type of its column stays text.
using CellValue = std::variant<std::monostate, QString, qint64, double, QDateTime, bool>;

/// A column as the screen declares it.
struct GridColumn
{
    QString field;        // column of the result; case does not count
    QString caption = {}; // blank: the field's name
    /// Turns the stored text into what is shown, which is text unless a type says otherwise.
    QString (*display)(const QString& stored) = nullptr;
    CellType type = CellType::AsRead;
    bool editable = false;
    int limit = 0; // letters that can be typed; 0 is no limit
    bool visible = true;

    QString heading() const { return caption.isEmpty() ? field : caption; }
};

class RowSetModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// How a cell becomes text.
    using CellReader = QString (*)(const sql::RowSet& rows, std::size_t row, std::size_t column);
    /// Whether a row, by its position in the result, is shown.
    using RowFilter = std::function<bool(std::size_t resultRow)>;

    explicit RowSetModel(QObject* parent = nullptr);

    void setCellReader(CellReader reader) { read_ = reader; }
    /// Columns in view order; those the result lacks are blank until they are edited.
    void setColumns(std::vector<GridColumn> columns);
    const std::vector<GridColumn>& columns() const { return columns_; }
    /// Takes new rows, without edits, and keeps filter and sorting.
    void setRows(const sql::RowSet& rows);
    const sql::RowSet& rows() const { return rows_; }

    /// Shows the rows that pass; an empty filter shows all. Rows that are edited later stay in sight.
    void setFilter(RowFilter filter);
    /// The rows that show the text in one of the columns declared visible, in any case; blank: all.
    void setTextFilter(const QString& text);

    /// Position in the result of a row of the view; and the other way round, -1 when it is not shown.
    std::size_t resultRow(int viewRow) const;
    int viewRow(std::size_t resultRow) const;

    /// Column whose field or, failing that, heading has the name, in any case; -1: none.
    int columnOf(const QString& name) const;
    /// The type that counts: never AsRead.
    CellType cellType(int column) const;
    bool isNumeric(int column) const;
    /// What the cell holds, edited or as read, by position in the result; and what it shows.
    QString stored(std::size_t resultRow, int column) const;
    QString text(int viewRow, int column) const;
    /// Blank cells have no value.
    CellValue value(int viewRow, int column) const;

    /// Lays a text over the cell; the column need not be editable by hand.
    void setStored(std::size_t resultRow, int column, const QString& text);
    bool isTicked(std::size_t resultRow, int column) const;
    void setTicked(std::size_t resultRow, int column, bool on);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    /// Text without regard to case, numbers as numbers, equal rows in the server's order; column -1
    /// is the server's order throughout.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

private:
    void bindColumns();
    void rearrange();
    void arrange();
    double number(std::size_t resultRow, int column) const;
    QString shown(std::size_t resultRow, int column) const;
    QString spokenTick(std::size_t resultRow, int column) const;
    const QString* edited(std::size_t resultRow, int column) const;

    CellReader read_;
    std::vector<GridColumn> columns_;
    std::vector<std::optional<std::size_t>> sources_; // of each column, in the result
    sql::RowSet rows_;
    std::map<std::pair<std::size_t, int>, QString> edits_; // by row of the result and column
    RowFilter filter_;
    bool arranged_ = false;            // otherwise the server's rows in the server's order
    std::vector<std::uint32_t> order_; // rows of the result, as arranged
    int sortColumn_ = -1;
    Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
};

} // namespace velcro::ui
