// Runs the program's statements, as the .sql files of this folder list them, against the tables
// that the deployment scripts make. In a file each statement is followed by "--> " and what it must
// answer, or, where it reads whole rows, by "--> of A, B: " and those of their columns; a line
// "-- Area" groups them.
#include "support/EmbeddedDatabase.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <set>
#include <string>

namespace fs = std::filesystem;
using velcro::sql::Blob;
using velcro::sql::Parameter;
using velcro::test::EmbeddedDatabase;
using velcro::test::TempFolder;

namespace {

struct Row
{
    std::string area;
    std::string statement;
    std::string columns; // of each answered row; blank for all of them
    std::string answer;
};

/// "of A, B: x|y" is the answer x|y in the columns A and B.
Row rowOf(const std::string& area, std::string statement, const std::string& answer) {
    const auto end = answer.find(": ");
    if (answer.rfind("of ", 0) != 0 || end == std::string::npos) {
        return {area, std::move(statement), "", answer};
    }
    return {area, std::move(statement), answer.substr(3, end - 3), answer.substr(end + 2)};
}

std::vector<Row> readTable(const std::string& name) {
    std::ifstream file(fs::path(STATEMENTS_FOLDER) / name);
    std::vector<Row> rows;
    std::string area;
    std::string statement;
    for (std::string line; std::getline(file, line);) {
        if (line.rfind("--> ", 0) == 0) {
            rows.push_back(rowOf(area, std::move(statement), line.substr(4)));
            statement.clear();
        } else if (line.rfind("-- ", 0) == 0) {
            area = line.substr(3);
        } else if (!line.empty() || !statement.empty()) {
            statement += line + "\r\n";
        }
    }
    EXPECT_EQ(statement, "") << "a statement without its answer";
    return rows;
}

void runScript(velcro::sql::SqlConnection& connection, const fs::path& path) {
    std::ifstream file(path);
    std::string batch;
    for (std::string line; std::getline(file, line);) {
        if (line == "GO") {
            connection.execute(batch);
            batch.clear();
        } else {
            batch += line + "\n";
        }
    }
    connection.execute(batch);
}

/// Each table of statements works on its own copy of the tables that the scripts make.
class StatementTableTest : public testing::TestWithParam<const char*>
{
protected:
    static void SetUpTestSuite() {
        std::set<fs::path> scripts;
        for (const auto& entry : fs::directory_iterator(DEPLOY_FOLDER)) {
            const std::string name = entry.path().filename().string();
            if (entry.path().extension() == ".sql" && name.rfind("server-", 0) != 0) {
                scripts.insert(entry.path());
            }
        }
        ASSERT_GE(scripts.size(), 6U);
        deployed_ = std::make_unique<TempFolder>();
        const auto connection = EmbeddedDatabase::open(deployed_->path().string(), true);
        for (const auto& script : scripts) {
            runScript(*connection, script);
        }
    }
    static void TearDownTestSuite() { deployed_.reset(); }

    StatementTableTest() {
        fs::copy(deployed_->path(), folder_.path(), fs::copy_options::recursive);
        connection_ = EmbeddedDatabase::open(folder_.path().string());
    }

    static std::unique_ptr<TempFolder> deployed_;
    TempFolder folder_;
    std::unique_ptr<velcro::sql::SqlConnection> connection_;
};

std::unique_ptr<TempFolder> StatementTableTest::deployed_;

} // namespace

TEST_P(StatementTableTest, everyStatementHasItsEffect) {
    const std::vector<Parameter> parameters{
        {"CO", std::string("01")},        {"Branch", std::string("100")},
        {"UserCode", std::string("ANN")}, {"UserGroup", std::string("COUNTER")},
        {"ScreenID", std::string("G1")},  {"GridSettings", std::string("[Grid] w=1")},
        {"Suite", std::string("VEL")},    {"ModCode", std::string("CRO")},
        {"TxTp", std::string("CROMST")},  {"CRONo", std::string("A1")},
        {"ItemNo", std::int64_t{1}},      {"ProcessID", std::int64_t{0}},
        {"ImageID", std::int64_t{3}},     {"ImageData", Blob{"JPEG"}}};
    const auto rows = readTable(GetParam());
    ASSERT_FALSE(rows.empty());
    for (const auto& row : rows) {
        EXPECT_EQ(EmbeddedDatabase::answerOf(*connection_, row.statement, parameters, row.columns),
                  row.answer)
            << row.area << ":\n"
            << row.statement;
    }
}

INSTANTIATE_TEST_SUITE_P(Areas, StatementTableTest,
                         testing::Values("shell.sql", "loaders.sql", "signin.sql", "rights.sql",
                                         "repairs.sql", "lookups.sql", "messages.sql",
                                         "schema.sql"));
