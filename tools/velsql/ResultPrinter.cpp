#include "ResultPrinter.h"

#include <algorithm>

namespace velcro::velsql {

namespace {

void printHex(std::string_view bytes, std::ostream& out) {
    constexpr char digits[] = "0123456789ABCDEF";
    std::string text = "0x";
    text.reserve(2 + bytes.size() * 2);
    for (const char byte : bytes) {
        text += digits[static_cast<unsigned char>(byte) >> 4];
        text += digits[static_cast<unsigned char>(byte) & 15];
    }
    out << text;
}

void printCell(const sql::RowSet& rows, std::size_t row, std::size_t column, std::ostream& out) {
    if (rows.isNull(row, column)) {
        out << "NULL";
    } else if (rows.column(column).type == sql::ColumnType::Blob) {
        printHex(rows.bytes(row, column), out);
    } else {
        out << rows.text(row, column);
    }
}

void printRows(const sql::RowSet& rows, std::ostream& out) {
    for (std::size_t column = 0; column < rows.columnCount(); ++column) {
        out << (column > 0 ? "\t" : "") << rows.column(column).name;
    }
    out << '\n';
    for (std::size_t row = 0; row < rows.rowCount(); ++row) {
        for (std::size_t column = 0; column < rows.columnCount(); ++column) {
            out << (column > 0 ? "\t" : "");
            printCell(rows, row, column, out);
        }
        out << '\n';
    }
}

} // namespace

bool isError(const sql::SqlMessage& message) {
    return message.level > 10;
}

void print(const sql::SqlMessage& message, const BatchPlace& place, std::ostream& out) {
    if (isError(message)) {
        out << "Msg " << message.number << ", Level " << message.level << ", State "
            << message.state << ", " << place.script << (place.script.empty() ? "" : ", ")
            << "Line " << place.line + std::max(message.line, 1) - 1 << ": ";
    }
    out << message.text << '\n';
}

void print(const sql::StatementResult& result, const BatchPlace& place, std::ostream& out) {
    for (const auto& message : result.messages) {
        print(message, place, out);
    }
    if (result.rows) {
        printRows(*result.rows, out);
    } else if (result.affected >= 0) {
        out << '(' << result.affected << " rows affected)\n";
    }
}

} // namespace velcro::velsql
