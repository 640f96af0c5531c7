// 100,000 rows over ODBC: the program's end against a bare loop over the same driver, the same
// column types and blocks of the same size. Prints the ratio of the best times.
#include "platform/sqlserver/odbc/Handle.h"
#include "platform/sqlserver/odbc/OdbcConnection.h"

#include "platform/sqlserver/Utf16.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <functional>

using namespace velcro::sql;
using namespace velcro::sql::odbc;

namespace {

constexpr int rowCount = 100'000;
constexpr int textColumns = 20;
constexpr std::size_t blockRows = 200;
constexpr std::size_t textBytes = 82;
constexpr int rounds = 5;

const std::string statementText = "SELECT * FROM Orders";

void makeTable(SqlConnection& connection) {
    std::string columns = "RecID INTEGER, Price DOUBLE";
    std::string values = "i, i * 1.25";
    for (int c = 0; c < textColumns; ++c) {
        columns += ", C" + std::to_string(c) + " VARCHAR(20)";
        values += ", 'text " + std::to_string(c) + " ' || i";
    }
    connection.execute("CREATE TABLE Orders (" + columns + ")");
    connection.execute("INSERT INTO Orders WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL"
                       " SELECT i + 1 FROM n WHERE i < " +
                       std::to_string(rowCount) + ") SELECT " + values + " FROM n");
}

/// Binds, fetches and touches each length.
SQLLEN bareLoop(SQLHANDLE connection) {
    StatementHandle statement(connection);
    const auto set = [&](SQLINTEGER attribute, auto value) {
        SQLSetStmtAttr(statement.get(), attribute, (SQLPOINTER)(value), 0);
    };
    SQLULEN fetched = 0;
    set(SQL_ATTR_ROW_ARRAY_SIZE, blockRows);
    set(SQL_ATTR_ROWS_FETCHED_PTR, &fetched);
    const auto text = toUtf16(statementText);
    SQLExecDirectW(statement.get(), wide(text.data()), SQL_NTS);
    std::vector<std::vector<char>> cells(textColumns + 2, std::vector<char>(blockRows * textBytes));
    std::vector<std::vector<SQLLEN>> lengths(textColumns + 2, std::vector<SQLLEN>(blockRows));
    for (SQLUSMALLINT c = 0; c < textColumns + 2; ++c) {
        const auto type = c == 0 ? SQL_C_SBIGINT : c == 1 ? SQL_C_DOUBLE : SQL_C_WCHAR;
        const auto size = c < 2 ? sizeof(double) : textBytes;
        SQLBindCol(statement.get(), c + 1, static_cast<SQLSMALLINT>(type), cells[c].data(),
                   static_cast<SQLLEN>(size), lengths[c].data());
    }
    SQLLEN sum = 0;
    while (SQL_SUCCEEDED(SQLFetch(statement.get()))) {
        for (const auto& column : lengths) {
            for (SQLULEN row = 0; row < fetched; ++row) {
                sum += column[row];
            }
        }
    }
    return sum;
}

double best(const std::function<void()>& work) {
    double seconds = 1e9;
    for (int i = 0; i < rounds; ++i) {
        const auto start = std::chrono::steady_clock::now();
        work();
        const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
        seconds = std::min(seconds, taken.count());
    }
    return seconds;
}

} // namespace

int main() {
    const auto folder = std::filesystem::temp_directory_path() / "velcro-odbc-bench";
    std::filesystem::create_directories(folder);
    const auto file = (folder / "orders.db").string();
    std::filesystem::remove(file);
    const auto connection = createOdbcConnection();
    connection->connect(
        {.server = "odbc:Driver={SQLite3}", .database = file, .mayNameDriver = true});
    makeTable(*connection);

    Environment environment;
    ConnectionHandle bare(environment.get());
    const auto where = toUtf16("Driver={SQLite3};Database=" + file + ";");
    SQLDriverConnectW(bare.get(), nullptr, wide(where.data()), SQL_NTS, nullptr, 0, nullptr,
                      SQL_DRIVER_NOPROMPT);
    SQLLEN bytes = 0;
    std::size_t rows = 0;
    const double reference = best([&] { bytes = bareLoop(bare.get()); });
    const double ours = best([&] { rows = connection->query(statementText).rowCount(); });
    SQLDisconnect(bare.get());
    std::printf(
        "fetch of %zu rows x %d columns over ODBC (%ld bytes): bare loop %.3f s, ours %.3f s,"
        " ratio %.2f (aim 1.25)\n",
        rows, textColumns + 2, static_cast<long>(bytes), reference, ours, ours / reference);
    connection->disconnect();
    std::filesystem::remove_all(folder);
}
