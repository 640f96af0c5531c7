#include "platform/sqlserver/odbc/BlockFetch.h"

#include "platform/sqlserver/odbc/ResultColumn.h"

#include <algorithm>

namespace velcro::sql::odbc {

namespace {

constexpr std::size_t blockBytes = 512 * 1024;
constexpr std::size_t mostBlockRows = 1000;

class BlockFetch
{
public:
    BlockFetch(SQLHANDLE statement, int columnCount, DriverKind kind)
        : statement_(statement) {
        for (int i = 1; i <= columnCount; ++i) {
            columns_.emplace_back(statement, static_cast<SQLUSMALLINT>(i), kind);
        }
        const auto isLong = [](const ResultColumn& column) { return column.isLong(); };
        boundCount_ = static_cast<std::size_t>(
            std::find_if(columns_.begin(), columns_.end(), isLong) - columns_.begin());
        // A driver need not read single cells of a block, nor one that stands before a bound one.
        blockRows_ = boundCount_ < columns_.size() ? 1 : rowsOfBlock();
    }
    ~BlockFetch() {
        SQLFreeStmt(statement_, SQL_UNBIND);
        setAttribute(SQL_ATTR_ROW_STATUS_PTR, nullptr);
        setAttribute(SQL_ATTR_ROWS_FETCHED_PTR, nullptr);
        setAttribute(SQL_ATTR_ROW_ARRAY_SIZE, reinterpret_cast<SQLPOINTER>(1));
    }
    BlockFetch(const BlockFetch&) = delete;
    BlockFetch& operator=(const BlockFetch&) = delete;

    /// Empty, or why the rows are not all there.
    std::vector<Diagnostic> run(RowSet& rows) {
        RowSetBuilder builder(names());
        auto code = bind();
        bool last = false;
        while (SQL_SUCCEEDED(code) && !last) {
            code = SQLFetch(statement_);
            // FreeTDS gives the rows before a failure, and the failure, as a success with remarks.
            auto remarks = code == SQL_SUCCESS_WITH_INFO ? said(false) : std::vector<Diagnostic>();
            if (std::any_of(remarks.begin(), remarks.end(), isError)) {
                return remarks;
            }
            if (SQL_SUCCEEDED(code)) {
                code = addBlock(builder);
            }
            // A block that is not full was the last. FreeTDS, asked again, would read on into the
            // next statement's result and take its error for this one's.
            last = fetched_ < blockRows_;
        }
        if (!SQL_SUCCEEDED(code) && code != SQL_NO_DATA) {
            return said(true);
        }
        rows = builder.take();
        return {};
    }

private:
    std::vector<Diagnostic> said(bool failed) const {
        return diagnostics(SQL_HANDLE_STMT, statement_, failed);
    }

    std::vector<Column> names() const {
        std::vector<Column> result;
        for (const auto& column : columns_) {
            result.push_back(column.column());
        }
        return result;
    }

    void setAttribute(SQLINTEGER attribute, SQLPOINTER value) {
        SQLSetStmtAttr(statement_, attribute, value, 0);
    }

    std::size_t rowsOfBlock() const {
        std::size_t rowBytes = 0;
        for (const auto& column : columns_) {
            rowBytes += column.cellBytes() + sizeof(SQLLEN);
        }
        return std::clamp(blockBytes / rowBytes, std::size_t{1}, mostBlockRows);
    }

    SQLRETURN bind() {
        status_.assign(blockRows_, SQL_ROW_NOROW);
        setAttribute(SQL_ATTR_ROW_BIND_TYPE, reinterpret_cast<SQLPOINTER>(SQL_BIND_BY_COLUMN));
        setAttribute(SQL_ATTR_ROW_ARRAY_SIZE, reinterpret_cast<SQLPOINTER>(blockRows_));
        setAttribute(SQL_ATTR_ROW_STATUS_PTR, status_.data());
        setAttribute(SQL_ATTR_ROWS_FETCHED_PTR, &fetched_);
        SQLRETURN code = SQL_SUCCESS;
        for (std::size_t i = 0; i < boundCount_ && SQL_SUCCEEDED(code); ++i) {
            code = columns_[i].bind(statement_, blockRows_);
        }
        return code;
    }

    SQLRETURN addBlock(RowSetBuilder& builder) {
        for (SQLULEN row = 0; row < fetched_; ++row) {
            if (status_[row] == SQL_ROW_ERROR) {
                return SQL_ERROR;
            }
            if (const auto code = addRow(row, builder); !SQL_SUCCEEDED(code)) {
                return code;
            }
        }
        return SQL_SUCCESS;
    }

    SQLRETURN addRow(SQLULEN row, RowSetBuilder& builder) {
        for (std::size_t i = 0; i < boundCount_; ++i) {
            if (!columns_[i].addBound(row, builder)) {
                refuse(columns_[i]);
            }
        }
        for (std::size_t i = boundCount_; i < columns_.size(); ++i) {
            if (const auto code = columns_[i].addRead(statement_, builder); !SQL_SUCCEEDED(code)) {
                return code;
            }
        }
        builder.endRow();
        return SQL_SUCCESS;
    }

    [[noreturn]] static void refuse(const ResultColumn& column) {
        throw TruncatedCell("The driver cut a value of column " + column.column().name +
                            ": it is longer than the column's type says.");
    }

    SQLHANDLE statement_;
    std::vector<ResultColumn> columns_;
    std::size_t boundCount_ = 0;
    std::size_t blockRows_ = 1;
    SQLULEN fetched_ = 0;
    std::vector<SQLUSMALLINT> status_;
};

} // namespace

std::vector<Diagnostic> fetchRows(SQLHANDLE statement, int columnCount, DriverKind kind,
                                  RowSet& rows) {
    try {
        return BlockFetch(statement, columnCount, kind).run(rows);
    } catch (const UndescribedColumn& column) {
        auto said = diagnostics(SQL_HANDLE_STMT, statement, true);
        said.push_back({"HY000", {.text = column.what()}});
        return said;
    }
}

} // namespace velcro::sql::odbc
