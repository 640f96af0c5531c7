// A sample seat as ./run and an installed program make it.
#include "platform/sqlserver/SqlConnection.h"
#include "support/CommandLine.h"
#include "support/EmbeddedDatabase.h"
#include "support/Rows.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <regex>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace {

using velcro::test::TempFolder;
namespace sql = velcro::sql;

using velcro::test::programWord;

int run(const std::string& command) {
    return velcro::test::runLine(command + " >" + velcro::test::nowhere + " 2>&1");
}

int provision(const fs::path& seat, const std::string& more = {},
              const fs::path& data = VELCRO_SAMPLE_DATA) {
    return run(programWord(VELCRO_SAMPLE) + " --no-start --today 2026/03/01 --seat \"" +
               seat.string() + "\" --data \"" + data.string() +
               "\" --structure \"" VELCRO_SAMPLE_STRUCTURE "\" " + more);
}

/// One seat for all tests that only look; its folder has a quote and a blank in its name.
class ProvisionTest : public testing::Test
{
protected:
    static void SetUpTestSuite() {
        folder_ = std::make_unique<TempFolder>();
        seat_ = folder_->path() / "the shop's seat";
        ASSERT_EQ(provision(seat_), 0);
    }
    static void TearDownTestSuite() { folder_.reset(); }

    static std::unique_ptr<sql::SqlConnection> connect(const std::string& database) {
        const std::string server = "embedded:" + (seat_ / "databases").string();
        auto connection = sql::createConnection(server);
        sql::ConnectionSettings settings;
        settings.server = server;
        settings.database = database;
        connection->connect(settings);
        return connection;
    }

    static std::int64_t count(sql::SqlConnection& connection, const std::string& statement) {
        const auto rows = connection.query(statement);
        return rows.rowCount() == 1 ? rows.integer(0, 0) : -1;
    }

    static inline std::unique_ptr<TempFolder> folder_;
    static inline fs::path seat_;
};

} // namespace

TEST_F(ProvisionTest, MakesDatabasesAndAConfigurationForTheOwnerOnly) {
    for (const char* database : {"VELCOMMON", "VELSUITE", "VELTILL"}) {
        EXPECT_TRUE(fs::exists(seat_ / "databases" / (std::string(database) + ".sqlite")));
        EXPECT_FALSE(fs::exists(seat_ / "databases" / (std::string(database) + ".sqlite-wal")))
            << "all work is in the database itself";
    }
    const auto file = seat_ / "config/velmara/Common Files/Microsoft Shared/MSHelp16/MSHelp16.cnf";
    ASSERT_TRUE(fs::exists(file));
    const auto others = fs::perms::group_all | fs::perms::others_all;
    for (const auto& path :
         {seat_, seat_ / "databases", seat_ / "databases/VELSUITE.sqlite", file}) {
        EXPECT_EQ(fs::status(path).permissions() & others, fs::perms::none) << path;
    }
    EXPECT_EQ(std::distance(fs::directory_iterator(seat_), {}), 2) << "work left behind";
}

TEST_F(ProvisionTest, ASeatInUseIsLeftAsItIsUnlessItIsToBeFresh) {
    const TempFolder folder;
    const fs::path seat = folder.path() / "seat";
    fs::copy(seat_, seat, fs::copy_options::recursive);
    std::ofstream(seat / "notes") << "mine";
    const auto mine = [&](const char* statement) {
        auto suite = sql::createConnection("embedded:");
        suite->connect(
            {.server = "embedded:" + (seat / "databases").string(), .database = "VELSUITE"});
        suite->execute(statement);
        return count(*suite, "SELECT COUNT(*) FROM SYSMessage WHERE [MsgCode] = 'MINE'");
    };
    EXPECT_EQ(mine("INSERT INTO SYSMessage ([CO], [MsgCode]) VALUES ('01', 'MINE')"), 1);
    EXPECT_EQ(provision(seat), 0);
    EXPECT_EQ(mine(""), 1);
    EXPECT_EQ(provision(seat, "--fresh"), 0);
    EXPECT_EQ(mine(""), 0);
    EXPECT_TRUE(fs::exists(seat / "notes"));
    EXPECT_EQ(std::distance(fs::directory_iterator(seat), {}), 3) << "work left behind";
}

TEST_F(ProvisionTest, AFailureLeavesNothingBehind) {
    const TempFolder folder;
    const auto seat = folder.path() / "seat";
    fs::copy(VELCRO_SAMPLE_DATA, folder.path() / "data");
    std::ofstream(folder.path() / "data/suite-99-wrong.sql")
        << "INSERT INTO NoSuchTable VALUES (1)";
    EXPECT_EQ(provision(seat, {}, folder.path() / "data"), 1);
    EXPECT_EQ(provision(seat, {}, folder.path() / "nowhere"), 1);
    EXPECT_TRUE(fs::is_empty(seat));
    EXPECT_EQ(provision(seat, "--today 2026/02/30"), 2);
    EXPECT_EQ(provision(seat, "more"), 2);
}

TEST_F(ProvisionTest, StructureScriptsCanBeRunAgain) {
    const fs::path copy = folder_->path() / "again";
    fs::copy(seat_ / "databases", copy, fs::copy_options::recursive);
    const std::pair<const char*, const char*> databases[] = {
        {"VELCOMMON", "common"}, {"VELSUITE", "suite"}, {"VELTILL", "till"}};
    for (const auto& [database, prefix] : databases) {
        std::string command =
            programWord(VELSQL_PROGRAM) + " -b -S \"embedded:" + copy.string() + "\" -d ";
        command += database;
        for (const auto& entry : fs::directory_iterator(VELCRO_SAMPLE_STRUCTURE)) {
            if (entry.path().filename().string().starts_with(prefix)) {
                command += " -i \"" + entry.path().string() + "\"";
            }
        }
        EXPECT_EQ(run(command), 0) << prefix;
    }
    auto suite = connect("VELSUITE");
    const auto tables = count(*suite, "SELECT COUNT(*) FROM sys.tables");
    auto again = sql::createConnection("embedded:" + copy.string());
    sql::ConnectionSettings settings;
    settings.server = "embedded:" + copy.string();
    settings.database = "VELSUITE";
    again->connect(settings);
    EXPECT_EQ(count(*again, "SELECT COUNT(*) FROM sys.tables"), tables);
    EXPECT_EQ(count(*again, "SELECT COUNT(*) FROM CRORepMst"), 600);
}

TEST_F(ProvisionTest, TheSampleHoldsWhatIsPromised) {
    for (const auto& [database, questions] : velcro::test::sectionsOf(SAMPLE_ROWS)) {
        const auto connection = connect(database);
        for (const auto& [text, answer] : questions) {
            EXPECT_EQ(velcro::test::EmbeddedDatabase::answerOf(*connection, text), answer) << text;
        }
    }
}

TEST_F(ProvisionTest, TelephoneNumbersPassTheCheckOfTheOrderScreen) {
    const std::regex pattern(R"(^\(?0\)?[1-9]{2}\)?[-.]?[0-9]{3}[-.]?[0-9]{4}$)");
    auto suite = connect("VELSUITE");
    for (const char* numbers :
         {"SELECT [CellPhone] FROM DEBMaster", "SELECT [Cellphone] FROM CRORepMst",
          "SELECT [Telephone] FROM DEBMaster WHERE [Telephone] <> ''",
          "SELECT [Telephone1] FROM CRORepMst WHERE [Telephone1] <> ''",
          "SELECT [Telephone2] FROM CRORepMst WHERE [Telephone2] <> ''"}) {
        const auto rows = suite->query(numbers);
        ASSERT_GT(rows.rowCount(), 100U) << numbers;
        for (std::size_t row = 0; row < rows.rowCount(); ++row) {
            const auto number = rows.text(row, 0);
            ASSERT_TRUE(std::regex_match(number, pattern)) << numbers << ": " << number;
        }
    }
}
