#include "tsql/values/RowSet.h"

#include "tsql/values/SqlError.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <limits>
#include <type_traits>

namespace velcro::sql {

namespace {

constexpr std::size_t blockSize = 1 << 20;
constexpr std::uint32_t nullMark = 0x80000000U;

char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool sameName(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return lower(x) == lower(y); });
}

std::uint32_t endMark(const std::byte* row, std::size_t column) {
    std::uint32_t mark = 0;
    std::memcpy(&mark, row + column * sizeof mark, sizeof mark);
    return mark;
}

template <typename Number>
Number readNumber(std::string_view bytes) {
    Number value{};
    std::memcpy(&value, bytes.data(), sizeof value);
    return value;
}

template <typename Number>
Number parseNumber(std::string_view text) {
    Number value{};
    const auto first = std::min(text.find_first_not_of(' '), text.size());
    std::from_chars(text.data() + first, text.data() + text.size(), value);
    return value;
}

template <typename Number>
std::string numberText(Number value) {
    char buffer[40];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value).ptr;
    return {buffer, end};
}

/// An integer is cut towards zero, and what is beyond its range is the end of the range.
template <class Number>
Number numberFrom(double value) {
    if constexpr (std::is_same_v<Number, double>) {
        return value;
    } else {
        constexpr double end = 0x1p63;
        using Limits = std::numeric_limits<Number>;
        return value >= end    ? Limits::max()
               : value >= -end ? static_cast<Number>(value)
               : value < 0     ? Limits::min()
                               : 0; // no number at all
    }
}

} // namespace

std::optional<std::size_t> RowSet::columnIndex(std::string_view name) const {
    for (std::size_t i = 0; i < columnCount(); ++i) {
        if (sameName(data_->columns[i].name, name)) {
            return i;
        }
    }
    return std::nullopt;
}

bool RowSet::isNull(std::size_t row, std::size_t column) const {
    return (endMark(data_->rows[row], column) & nullMark) != 0;
}

std::string_view RowSet::bytes(std::size_t row, std::size_t column) const {
    const std::byte* start = data_->rows[row];
    const auto from = column == 0 ? 0 : endMark(start, column - 1) & ~nullMark;
    const auto to = endMark(start, column) & ~nullMark;
    const auto* cells = start + columnCount() * sizeof(std::uint32_t);
    return {reinterpret_cast<const char*>(cells) + from, to - from};
}

std::string RowSet::text(std::size_t row, std::size_t column) const {
    const auto cell = bytes(row, column);
    if (cell.empty()) {
        return {};
    }
    switch (data_->columns[column].type) {
    case ColumnType::Integer:
    case ColumnType::Bit:
        return numberText(readNumber<std::int64_t>(cell));
    case ColumnType::Float:
        return numberText(readNumber<double>(cell));
    default:
        return std::string(cell);
    }
}

template <typename Number>
Number RowSet::as(std::size_t row, std::size_t column) const {
    const auto cell = bytes(row, column);
    if (cell.empty()) {
        return 0;
    }
    switch (data_->columns[column].type) {
    case ColumnType::Integer:
    case ColumnType::Bit:
        return static_cast<Number>(readNumber<std::int64_t>(cell));
    case ColumnType::Float:
        return numberFrom<Number>(readNumber<double>(cell));
    default:
        return parseNumber<Number>(cell);
    }
}

std::int64_t RowSet::integer(std::size_t row, std::size_t column) const {
    return as<std::int64_t>(row, column);
}

double RowSet::number(std::size_t row, std::size_t column) const {
    return as<double>(row, column);
}

std::size_t RowSet::memoryUse() const {
    if (!data_) {
        return 0;
    }
    return data_->blockBytes + data_->rows.capacity() * sizeof(const std::byte*);
}

RowSetBuilder::RowSetBuilder(std::vector<Column> columns)
    : data_(std::make_shared<RowSet::Data>())
    , headerBytes_(columns.size() * sizeof(std::uint32_t))
    , rowBytes_(headerBytes_) {
    data_->columns = std::move(columns);
}

void RowSetBuilder::addNull() {
    if (rowBytes_ > freeBytes_) {
        makeRoom(rowBytes_);
    }
    endCell(nullMark);
}

void RowSetBuilder::addBytes(std::string_view value) {
    const std::size_t size = rowBytes_ + value.size();
    if (size > freeBytes_) {
        makeRoom(size);
    }
    if (!value.empty()) {
        std::memcpy(free_ + rowBytes_, value.data(), value.size());
        rowBytes_ = size;
    }
    endCell(0);
}

void RowSetBuilder::endCell(std::uint32_t mark) {
    const std::uint32_t end = static_cast<std::uint32_t>(rowBytes_ - headerBytes_) | mark;
    std::memcpy(free_ + cells_ * sizeof end, &end, sizeof end);
    ++cells_;
}

/// What the row has so far goes along to a block that has room for all of it.
void RowSetBuilder::makeRoom(std::size_t wanted) {
    if (wanted - headerBytes_ >= nullMark) {
        throw SqlError(SqlErrorKind::Statement, "HY001",
                       {.number = 701, .text = "A row of the result is longer than 2 GB."}, {});
    }
    // The first block is small, since most results are; later ones take many rows.
    const auto usual = data_->blocks.empty() ? std::size_t{4096} : blockSize;
    freeBytes_ = std::max(usual, wanted);
    auto block = std::make_unique_for_overwrite<std::byte[]>(freeBytes_);
    if (cells_ > 0) {
        std::memcpy(block.get(), free_, rowBytes_);
    }
    data_->blocks.push_back(std::move(block));
    data_->blockBytes += freeBytes_;
    free_ = data_->blocks.back().get();
}

void RowSetBuilder::addInteger(std::int64_t value) {
    addBytes({reinterpret_cast<const char*>(&value), sizeof value});
}

void RowSetBuilder::addFloat(double value) {
    value += 0.0; // decimal and money know no negative zero
    addBytes({reinterpret_cast<const char*>(&value), sizeof value});
}

void RowSetBuilder::endRow() {
    data_->rows.push_back(free_);
    free_ += rowBytes_;
    freeBytes_ -= rowBytes_;
    rowBytes_ = headerBytes_;
    cells_ = 0;
}

RowSet RowSetBuilder::take() {
    RowSet result;
    result.data_ = std::move(data_);
    data_ = std::make_shared<RowSet::Data>();
    free_ = nullptr;
    freeBytes_ = 0;
    return result;
}

} // namespace velcro::sql
