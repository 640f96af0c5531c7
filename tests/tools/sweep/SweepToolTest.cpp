// velcro-sweep as an administrator calls it.
#include "support/CommandLine.h"
#include "support/EmbeddedDatabase.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

using velcro::test::EmbeddedDatabase;

namespace {

struct Outcome
{
    int status = -1;
    std::string text;
};

Outcome sweep(const std::string& arguments) {
    const velcro::test::TempFolder folder;
    const int status =
        velcro::test::runLine(velcro::test::withVariable("QT_QPA_PLATFORM", "offscreen") +
                              velcro::test::programWord(SWEEP_PROGRAM) + ' ' + arguments + " >" +
                              folder.file("said") + " 2>&1");
    std::ostringstream text;
    text << std::ifstream(folder.file("said")).rdbuf();
    return {status, text.str()};
}

int countOf(const std::string& text, const std::string& word) {
    int count = 0;
    for (auto at = text.find(word); at != std::string::npos; at = text.find(word, at + 1)) {
        ++count;
    }
    return count;
}

class SweepToolTest : public testing::Test
{
protected:
    std::string on() const {
        return " -S embedded:" + database.folder().path().string() + " -d Shop";
    }
    EmbeddedDatabase database;
};

} // namespace

TEST_F(SweepToolTest, wrongUsageIsToldAndHelpIsGiven) {
    const struct
    {
        const char* arguments;
        int status;
        const char* begins;
    } lines[] = {{"", 2, "velcro-sweep: either --print or --run"},
                 {"--print --run", 2, "velcro-sweep: either --print or --run"},
                 {"--run", 2, "velcro-sweep: --run wants -S and -d"},
                 {"--print -S here", 2, "velcro-sweep: -S and -d belong together"},
                 {"--print extra", 2, "velcro-sweep: unknown argument: extra"},
                 {"--quickly", 2, "velcro-sweep: Unknown option 'quickly'."},
                 {"--help", 0, "usage: velcro-sweep --print"},
                 {"--print -S embedded:/nowhere -d T", 1, "velcro-sweep: The folder \"/nowhere\""}};
    for (const auto& [arguments, status, begins] : lines) {
        const Outcome outcome = sweep(arguments);
        EXPECT_EQ(outcome.status, status) << arguments;
        EXPECT_EQ(outcome.text.substr(0, std::string(begins).size()), begins) << arguments;
    }
}

TEST_F(SweepToolTest, whatIsPrintedIsWhatIsThenSent) {
    database.answer(
        "CREATE TABLE POSTillMaster (RecID int IDENTITY(1, 1) NOT NULL PRIMARY KEY,"
        " CO nvarchar(5) DEFAULT 'x' NOT NULL, TillNo nvarchar(5), Amount decimal(9, 2))");
    database.answer("CREATE INDEX Own ON POSTillMaster (CO) INCLUDE (TillNo)");
    database.answer("CREATE UNIQUE INDEX Single ON POSTillMaster (TillNo)");
    const Outcome printed = sweep("--print" + on());
    EXPECT_EQ(printed.status, 0) << printed.text.substr(0, 300);
    EXPECT_EQ(database.answer("SELECT COUNT(*) FROM sys.tables"), "1") << "nothing was sent";
    EXPECT_EQ(countOf(printed.text, "CREATE TABLE "), 158);
    EXPECT_EQ(countOf(printed.text, "DROP INDEX [ Own] ON [dbo].[POSTillMaster] \nGO\n-- refused"),
              1);
    const Outcome run = sweep("--run" + on());
    EXPECT_EQ(run.status, 0);
    const auto sent = std::to_string(countOf(printed.text, "\nGO\n"));
    const auto refused = std::to_string(countOf(printed.text, "\n-- refused: "));
    EXPECT_NE(run.text.find("Shop: " + sent + " statements, " + refused + " refused; version"),
              std::string::npos)
        << run.text << sent << " " << refused;
    EXPECT_EQ(database.answer("SELECT COUNT(*) FROM sys.tables"), "159");
    EXPECT_EQ(countOf(sweep("--print" + on()).text, "\nGO\n"), 15)
        << "and one index that cannot go";
}

TEST_F(SweepToolTest, aSweepThatStopsSaysWhy) {
    database.answer("CREATE TABLE Other (B nvarchar(100))");
    database.answer("CREATE VIEW Shown AS SELECT B AS Description1 FROM Other");
    const Outcome outcome = sweep("--run" + on());
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(countOf(outcome.text, "velcro-sweep: [SysTillDBMods.tb_Update_STKDesc_ColLength]"),
              1);
}
