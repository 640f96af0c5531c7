// One column of a result on its way from the driver: how its cells are asked for and kept.
#pragma once

#include "platform/sqlserver/odbc/DriverChoice.h"
#include "tsql/values/RowSet.h"

#include <memory>
#include <stdexcept>
#include <vector>

namespace velcro::sql::odbc {

/// The driver cannot tell what a column is; its diagnostics say why.
struct UndescribedColumn : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

class ResultColumn
{
public:
    /// index from 1. Throws UndescribedColumn.
    ResultColumn(SQLHANDLE statement, SQLUSMALLINT index, DriverKind kind);

    const Column& column() const { return column_; }
    /// Of unknown or large size: read cell by cell instead of bound.
    bool isLong() const { return cellBytes_ == 0; }
    std::size_t cellBytes() const { return cellBytes_; }

    SQLRETURN bind(SQLHANDLE statement, std::size_t blockRows);
    /// Adds the bound cell. False where the driver had more of it than its type allows.
    bool addBound(std::size_t row, RowSetBuilder& builder);
    /// Reads the current row's cell and adds it.
    SQLRETURN addRead(SQLHANDLE statement, RowSetBuilder& builder);

private:
    void choose(SQLSMALLINT sqlType, SQLULEN size, SQLSMALLINT scale, DriverKind kind);
    void chooseText(SQLULEN characters, bool isLong, DriverKind kind);
    void addFixed(const std::byte* cell, SQLLEN length, RowSetBuilder& builder);
    void addText(std::u16string_view text, RowSetBuilder& builder);
    void addDate(const std::byte* cell, RowSetBuilder& builder) const;
    void addStamp(const std::byte* cell, RowSetBuilder& builder) const;
    SQLRETURN readFixed(SQLHANDLE statement, RowSetBuilder& builder);
    SQLRETURN readLong(SQLHANDLE statement, bool& isNull);

    SQLUSMALLINT index_;
    Column column_;
    SQLSMALLINT cType_ = SQL_C_WCHAR;
    std::size_t cellBytes_ = 0;
    std::unique_ptr<std::byte[]> cells_;
    std::vector<SQLLEN> lengths_;
    std::vector<char> value_; // a long value gathered piece by piece
    std::string utf8_;
};

} // namespace velcro::sql::odbc
