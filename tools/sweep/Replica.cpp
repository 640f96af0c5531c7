#include "Replica.h"

#include <set>
#include <string>

namespace velcro::sweep {

namespace {

using sql::RowSet;

std::string quoted(std::string name) {
    for (auto at = name.find(']'); at != std::string::npos; at = name.find(']', at + 2)) {
        name.insert(at, 1, ']');
    }
    return "[" + name + "]";
}

/// The rows of a catalogue view with its columns by position.
class Rows
{
public:
    Rows(sql::SqlConnection& from, const std::string& select)
        : rows_(from.query(select)) {}

    bool atEnd() const { return row_ == rows_.rowCount(); }
    void next() { ++row_; }
    std::string text(std::size_t column) const { return std::string(rows_.text(row_, column)); }
    bool isNull(std::size_t column) const { return rows_.isNull(row_, column); }

private:
    RowSet rows_;
    std::size_t row_ = 0;
};

std::string typeOf(const Rows& column) {
    static const std::set<std::string> sized = {"char",     "nchar",  "varchar",
                                                "nvarchar", "binary", "varbinary"};
    std::string type = column.text(2);
    if (sized.contains(type)) {
        type += "(" + (column.text(3) == "-1" ? "max" : column.text(3)) + ")";
    }
    return type;
}

/// Columns, or the select list of a view, of one table after the other.
void makeTables(sql::SqlConnection& from, sql::SqlConnection& to) {
    Rows column(from, "SELECT C.TABLE_NAME, C.COLUMN_NAME, C.DATA_TYPE, C.CHARACTER_MAXIMUM_LENGTH,"
                      " C.IS_NULLABLE, C.COLUMN_DEFAULT, T.TABLE_TYPE, S.is_identity"
                      " FROM INFORMATION_SCHEMA.COLUMNS C INNER JOIN INFORMATION_SCHEMA.TABLES T"
                      " ON T.TABLE_NAME = C.TABLE_NAME INNER JOIN sys.columns S"
                      " ON S.object_id = OBJECT_ID(C.TABLE_NAME) AND S.name = C.COLUMN_NAME"
                      " ORDER BY C.TABLE_NAME, C.ORDINAL_POSITION");
    while (!column.atEnd()) {
        const std::string name = column.text(0);
        const bool isView = column.text(6) == "VIEW";
        std::string columns;
        for (; !column.atEnd() && column.text(0) == name; column.next()) {
            const std::string own = quoted(column.text(1));
            columns += columns.empty() ? "" : ", ";
            columns += isView ? "CAST(NULL AS " + typeOf(column) + ") AS " + own
                              : own + " " + typeOf(column) +
                                    (column.text(7) == "1" ? " IDENTITY(1, 1)" : "") +
                                    (column.text(4) == "NO" ? " NOT NULL" : "") +
                                    (column.isNull(5) ? "" : " DEFAULT " + column.text(5));
        }
        to.execute(isView ? "CREATE VIEW " + quoted(name) + " AS SELECT " + columns
                          : "CREATE TABLE " + quoted(name) + " (" + columns + ")");
    }
}

void makeIndexes(sql::SqlConnection& from, sql::SqlConnection& to) {
    Rows key(from, "SELECT T.name, I.name, C.name, I.is_primary_key, I.is_unique,"
                   " K.is_included_column FROM sys.indexes I"
                   " INNER JOIN sys.tables T ON T.object_id = I.object_id"
                   " INNER JOIN sys.index_columns K ON K.object_id = I.object_id"
                   " AND K.index_id = I.index_id"
                   " INNER JOIN sys.columns C ON C.object_id = K.object_id"
                   " AND C.column_id = K.column_id WHERE I.name IS NOT NULL"
                   " ORDER BY T.name, I.index_id, K.is_included_column, K.key_ordinal,"
                   " K.index_column_id");
    while (!key.atEnd()) {
        const std::string table = key.text(0), name = key.text(1);
        const bool isPrimary = key.text(3) == "1", isUnique = key.text(4) == "1";
        std::string columns, included;
        for (; !key.atEnd() && key.text(0) == table && key.text(1) == name; key.next()) {
            std::string& list = key.text(5) == "1" ? included : columns;
            list += (list.empty() ? "" : ", ") + quoted(key.text(2));
        }
        const std::string on = quoted(table);
        to.execute(isPrimary ? "ALTER TABLE " + on + " ADD CONSTRAINT " + quoted(name) +
                                   " PRIMARY KEY (" + columns + ")"
                             : std::string("CREATE ") + (isUnique ? "UNIQUE " : "") + "INDEX " +
                                   quoted(name) + " ON " + on + " (" + columns + ")" +
                                   (included.empty() ? "" : " INCLUDE (" + included + ")"));
    }
}

} // namespace

void replicate(sql::SqlConnection& from, sql::SqlConnection& to) {
    makeTables(from, to);
    makeIndexes(from, to);
}

} // namespace velcro::sweep
