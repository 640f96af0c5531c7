// What the embedded end answers, question by question, as the files beside this one state it. The
// first section of a file is put to the fresh database of each of the others before.
#include "support/EmbeddedDatabase.h"
#include "support/Rows.h"
#include "tsql/catalogue/Catalogue.h"
#include "tsql/catalogue/SqliteHandle.h"
#include "tsql/functions/Functions.h"

#include <gtest/gtest.h>

#include <ctime>

using velcro::sql::SqlError;
using velcro::test::EmbeddedDatabase;
using velcro::test::Section;
namespace tsql = velcro::sql::tsql;

namespace {

class AnswersTest : public testing::TestWithParam<std::string>
{
protected:
    /// "error <number> <level> <state> <SQLSTATE> <words>", or "no error".
    static std::string refusal(EmbeddedDatabase& database, const std::string& batch) {
        try {
            database.connection().execute(batch);
            return "no error";
        } catch (const SqlError& error) {
            return "error " + std::to_string(error.number()) + " " +
                   std::to_string(error.message().level) + " " +
                   std::to_string(error.message().state) + " " + error.sqlState() + " " +
                   error.what();
        }
    }
    /// Of definitions, a second connection must know as well.
    static void ask(EmbeddedDatabase& database, const Section& section) {
        SCOPED_TRACE(section.name);
        const auto other = GetParam() == "definitions" ? database.open() : nullptr;
        for (const auto& [text, answer] : section.questions) {
            const bool inWords =
                answer.starts_with("error ") && answer.find(' ', 6) < answer.size();
            EXPECT_EQ(inWords ? refusal(database, text) : database.answer(text), answer) << text;
            if (other && text.starts_with("SELECT ")) {
                EXPECT_EQ(EmbeddedDatabase::answerOf(*other, text), answer) << text;
            }
        }
    }
    /// What SQLite itself says of the file, which definitions write to in their own way.
    static std::string inSqlite(const EmbeddedDatabase& database, const std::string& sql) {
        sqlite3* file = nullptr;
        sqlite3_open(database.folder().file("Shop.sqlite").c_str(), &file);
        const tsql::DatabaseHandle handle(file);
        tsql::Catalogue catalogue(file, "Shop");
        tsql::FunctionHost host(catalogue, {});
        tsql::registerFunctions(file, host);
        std::string found;
        const auto take = [](void* text, int count, char** cells, char**) {
            *static_cast<std::string*>(text) += cells[count - 1];
            return 0;
        };
        EXPECT_EQ(sqlite3_exec(file, sql.c_str(), take, &found, nullptr), SQLITE_OK) << sql;
        return found;
    }
};

INSTANTIATE_TEST_SUITE_P(Rows, AnswersTest,
                         testing::Values("collation", "conversions", "definitions", "equal_text",
                                         "functions", "messages", "statements", "views"),
                         [](const auto& info) { return info.param; });

} // namespace

TEST_P(AnswersTest, areAsStated) {
    const auto sections =
        velcro::test::sectionsOf(std::string(TSQL_ROWS "/answers/") + GetParam() + ".rows");
    ASSERT_GT(sections.size(), 1U);
    for (std::size_t i = 1; i < sections.size(); ++i) {
        EmbeddedDatabase database;
        ask(database, sections[0]);
        ask(database, sections[i]);
        EXPECT_EQ(inSqlite(database, "PRAGMA integrity_check"), "ok") << sections[i].name;
    }
}

TEST_F(AnswersTest, aTableIsFoundByItsNameWithoutReadingAll) {
    const std::string plan =
        inSqlite(EmbeddedDatabase(), "EXPLAIN QUERY PLAN SELECT * FROM (" +
                                         tsql::systemView("INFORMATION_SCHEMA", "TABLES")->text +
                                         ") v WHERE TABLE_NAME = 'x'");
    EXPECT_NE(plan.find("SEARCH"), std::string::npos) << plan;
}

TEST_F(AnswersTest, theClockIsTheSeats) {
    const EmbeddedDatabase database;
    const auto now = [] {
        const std::time_t time = std::time(nullptr);
        char text[32];
        return std::string(
            text, std::strftime(text, sizeof text, "%Y-%m-%d %H:%M", std::localtime(&time)));
    };
    const std::string before = now();
    const std::string answer = database.answer("SELECT CONVERT(nvarchar(16), GETDATE(), 120),"
                                               " CONVERT(nvarchar(16), SYSDATETIME(), 120)");
    EXPECT_TRUE(answer == before + "|" + before || answer == now() + "|" + now()) << answer;
}
