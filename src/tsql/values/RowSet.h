// A whole result set, held compactly: one block of bytes a few thousand rows long after another
// instead of a string object for every cell.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velcro::sql {

/// How a column's cells are held. DateTime cells are text of the form yyyy-mm-dd hh:mm:ss.mmm;
/// Date cells yyyy-mm-dd. Decimal cells are numbers of more digits than a Float keeps, as text without
/// zeros at the end of the fraction.
enum class ColumnType { Text, Integer, Float, Decimal, Bit, DateTime, Date, Blob };

struct Column
{
    std::string name;
    ColumnType type = ColumnType::Text;
};

/// Rows in the order the server gave them. Copies share the rows, which never change once built.
/// Row and column indices are not checked; names that are no column give std::nullopt.
class RowSet
{
public:
    RowSet() = default;

    std::size_t rowCount() const { return data_ ? data_->rows.size() : 0; }
    std::size_t columnCount() const { return data_ ? data_->columns.size() : 0; }
    const Column& column(std::size_t index) const { return data_->columns[index]; }
    /// Case does not count, as in the server's collation.
    std::optional<std::size_t> columnIndex(std::string_view name) const;

    bool isNull(std::size_t row, std::size_t column) const;
    /// The cell's own bytes: UTF-8 for text and dates, raw for blobs; empty for NULL. Valid as long
    /// as any copy of this row set. For numbers use text().
    std::string_view bytes(std::size_t row, std::size_t column) const;
    /// The cell as text; numbers in their shortest form that reads back the same; NULL is empty.
    std::string text(std::size_t row, std::size_t column) const;
    /// The cell as a number; text is read as one, 0 where it is none or NULL.
    std::int64_t integer(std::size_t row, std::size_t column) const;
    double number(std::size_t row, std::size_t column) const;

    /// Bytes that the rows take in memory, for measuring.
    std::size_t memoryUse() const;

private:
    friend class RowSetBuilder;
    struct Data
    {
        std::vector<Column> columns;
        std::vector<std::unique_ptr<std::byte[]>> blocks;
        std::vector<const std::byte*> rows; // each: end offset of every cell, then the cells
        std::size_t blockBytes = 0;
    };
    template <typename Number>
    Number as(std::size_t row, std::size_t column) const;

    std::shared_ptr<const Data> data_;
};

/// Fills a RowSet cell by cell, left to right, row by row.
class RowSetBuilder
{
public:
    explicit RowSetBuilder(std::vector<Column> columns);

    void addNull();
    /// Text, dates and blobs.
    void addBytes(std::string_view value);
    void addInteger(std::int64_t value);
    void addFloat(double value);
    /// Call after the last cell of each row.
    void endRow();

    std::size_t rowCount() const { return data_->rows.size(); }
    /// What is known only after the first row, such as the type of an expression, can be set late,
    /// as long as no cell of the column but NULL was added.
    void setColumnType(std::size_t column, ColumnType type) { data_->columns[column].type = type; }
    ColumnType columnType(std::size_t column) const { return data_->columns[column].type; }

    /// Ends the building; the builder is empty afterwards.
    RowSet take();

private:
    void endCell(std::uint32_t mark);
    void makeRoom(std::size_t wanted);

    std::shared_ptr<RowSet::Data> data_;
    // The row being built stands where the last block is free: end offset of every cell, the top bit
    // marks NULL, then the cells.
    std::size_t headerBytes_;
    std::size_t rowBytes_; // of that row so far
    std::size_t cells_ = 0;
    std::byte* free_ = nullptr;
    std::size_t freeBytes_ = 0;
};

} // namespace velcro::sql
