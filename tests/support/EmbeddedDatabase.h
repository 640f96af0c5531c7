// A fresh embedded database of a test, and its answers as short text.
#pragma once

#include "platform/sqlserver/SqlConnection.h"
#include "support/TempFolder.h"

#include <algorithm>
#include <memory>
#include <numeric>
#include <string>
#include <string_view>
#include <vector>

namespace velcro::test {

class EmbeddedDatabase
{
public:
    EmbeddedDatabase()
        : connection_(open(true)) {}

    /// Another connection to the same database.
    std::unique_ptr<sql::SqlConnection> open(bool create = false) const {
        return open(folder_.path().string(), create);
    }
    static std::unique_ptr<sql::SqlConnection> open(const std::string& folder, bool create = false,
                                                    const std::string& name = "Shop") {
        sql::ConnectionSettings settings;
        settings.server = "embedded:" + folder;
        settings.database = name;
        settings.createDatabase = create;
        auto connection = sql::createConnection(settings.server);
        connection->connect(settings);
        return connection;
    }

    sql::SqlConnection& connection() { return *connection_; }
    const TempFolder& folder() const { return folder_; }

    std::string answer(std::string_view batch, std::span<const sql::Parameter> parameters = {},
                       std::string_view columns = {}) const {
        return answerOf(*connection_, batch, parameters, columns);
    }

    /// Rows as "a|b;c|d", statements without rows as "(n)", blanks between; a failure ends it as
    /// "error n". With columns, "A, B", the rows show those only.
    static std::string answerOf(sql::SqlConnection& connection, std::string_view batch,
                                std::span<const sql::Parameter> parameters = {},
                                std::string_view columns = {}) {
        std::string text;
        try {
            connection.run(batch, parameters, [&](sql::StatementResult&& result) {
                text += text.empty() ? "" : " ";
                text += result.rows ? rowsText(*result.rows, columns)
                                    : "(" + std::to_string(result.affected) + ")";
            });
        } catch (const sql::SqlError& error) {
            text += text.empty() ? "" : " ";
            text += "error " + std::to_string(error.number());
        }
        return text;
    }

private:
    static std::string rowsText(const sql::RowSet& rows, std::string_view columns) {
        std::string text;
        const auto shown = shownColumns(rows, columns);
        for (std::size_t row = 0; row < rows.rowCount(); ++row) {
            text += row == 0 ? "" : ";";
            for (const std::size_t& column : shown) {
                text += &column == &shown.front() ? "" : "|";
                text += rows.isNull(row, column) ? "NULL" : rows.text(row, column);
            }
        }
        return text;
    }

    static std::vector<std::size_t> shownColumns(const sql::RowSet& rows,
                                                 std::string_view columns) {
        std::vector<std::size_t> shown;
        if (columns.empty()) {
            shown.resize(rows.columnCount());
            std::iota(shown.begin(), shown.end(), 0);
        }
        while (!columns.empty()) {
            const auto name = columns.substr(0, columns.find(", "));
            // An unknown name must not pass for an empty answer.
            shown.push_back(rows.columnIndex(name).value());
            columns.remove_prefix(std::min(columns.size(), name.size() + 2));
        }
        return shown;
    }

    TempFolder folder_;
    std::unique_ptr<sql::SqlConnection> connection_;
};

} // namespace velcro::test
