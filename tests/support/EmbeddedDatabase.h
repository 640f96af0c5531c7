// A fresh embedded database of a test, and its answers as short text.
#pragma once

#include "platform/sqlserver/SqlConnection.h"
#include "support/TempFolder.h"

#include <memory>
#include <string>
#include <string_view>

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

    std::string answer(std::string_view batch,
                       std::span<const sql::Parameter> parameters = {}) const {
        return answerOf(*connection_, batch, parameters);
    }

    /// Rows as "a|b;c|d", statements without rows as "(n)", blanks between; a failure ends it as
    /// "error n".
    static std::string answerOf(sql::SqlConnection& connection, std::string_view batch,
                                std::span<const sql::Parameter> parameters = {}) {
        std::string text;
        try {
            connection.run(batch, parameters, [&text](sql::StatementResult&& result) {
                text += text.empty() ? "" : " ";
                text += result.rows ? rowsText(*result.rows)
                                    : "(" + std::to_string(result.affected) + ")";
            });
        } catch (const sql::SqlError& error) {
            text += text.empty() ? "" : " ";
            text += "error " + std::to_string(error.number());
        }
        return text;
    }

private:
    static std::string rowsText(const sql::RowSet& rows) {
        std::string text;
        for (std::size_t row = 0; row < rows.rowCount(); ++row) {
            text += row == 0 ? "" : ";";
            for (std::size_t column = 0; column < rows.columnCount(); ++column) {
                text += column == 0 ? "" : "|";
                text += rows.isNull(row, column) ? "NULL" : rows.text(row, column);
            }
        }
        return text;
    }

    TempFolder folder_;
    std::unique_ptr<sql::SqlConnection> connection_;
};

} // namespace velcro::test
