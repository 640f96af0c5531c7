// A sample seat as ./run and an installed program make it.
#include "platform/sqlserver/SqlConnection.h"
#include "support/CommandLine.h"
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

TEST_F(ProvisionTest, HoldsTheRowsThatArePromised) {
    struct Promise
    {
        const char* database;
        const char* what;
        std::int64_t least;
    };
    const Promise promises[] = {
        {"VELSUITE", "SYSCompany", 2},
        {"VELSUITE", "SYSBranch", 3},
        {"VELSUITE", "SYSUser", 12},
        {"VELSUITE", "DEBMaster", 3000},
        {"VELSUITE", "STKMaster", 2000},
        {"VELSUITE", "STKPrice", 4000},
        {"VELSUITE", "STKBalance", 1500},
        {"VELSUITE", "STKAltBarcodes", 200},
        {"VELSUITE", "STKAltSuppliers", 200},
        {"VELSUITE", "STKKitMaster", 20},
        {"VELSUITE", "STKSerialMst", 2000},
        {"VELSUITE", "CRORepMst", 600},
        {"VELSUITE", "CRORepItems", 600},
        {"VELSUITE", "CRORepItmIntake", 600},
        {"VELSUITE", "CRORepItmFaults", 600},
        {"VELSUITE", "CRORepItmProcess", 600},
        {"VELSUITE", "CRORepItmQuoteHdr", 600},
        {"VELSUITE", "CRORepItmQuoteDet", 600},
        {"VELSUITE", "CRORepItmImages", 3},
        {"VELSUITE", "CROTechMst", 10},
        {"VELCOMMON", "vcSettings", 5},
        {"VELCOMMON", "vcErrorMessages", 5},
        {"VELCOMMON", "vcSysParmControl", 30},
        {"VELCOMMON", "vcSysAccess", 12},
        {"VELCOMMON", "vcHelpDetl WHERE [FormCode] = 'CRO100'", 10},
    };
    for (const auto& promise : promises) {
        auto connection = connect(promise.database);
        const auto statement = std::string("SELECT COUNT(*) FROM ") + promise.what;
        EXPECT_GE(count(*connection, statement), promise.least) << promise.what;
    }
    auto till = connect("VELTILL");
    EXPECT_EQ(count(*till, "SELECT COUNT(*) FROM SYSTillControl"), 0);
    auto common = connect("VELCOMMON");
    const auto rows = common->query("SELECT [Version] FROM vcVersions WHERE [Suite] = 'VELMARA'"
                                    "   AND [PgmName] = 'velCRO'");
    EXPECT_EQ(rows.rowCount() == 1 ? rows.text(0, 0) : "", "14.47.41");
}

TEST_F(ProvisionTest, LinksBetweenTablesHold) {
    const std::string item = " WHERE T1.CO = T0.CO AND T1.Branch = T0.Branch"
                             " AND T1.CRONo = T0.CRONo";
    const std::string itemNo = " AND T1.ItemNo = T0.ItemNo";
    const std::string share = " LEFT OUTER JOIN SYSBRShare S ON S.CO = T0.CO"
                              " AND S.Branch = T0.Branch";
    const auto lost = [](const std::string& from, const std::string& in, const std::string& where) {
        return "SELECT COUNT(*) FROM " + from + " WHERE NOT EXISTS (SELECT T1.RecID FROM " + in +
               " T1" + where + ")";
    };
    const std::pair<const char*, std::string> links[] = {
        {"items without an order", lost("CRORepItems T0", "CRORepMst", item)},
        {"intakes without an item", lost("CRORepItmIntake T0", "CRORepItems", item + itemNo)},
        {"faults without an item", lost("CRORepItmFaults T0", "CRORepItems", item + itemNo)},
        {"steps without an order", lost("CRORepItmProcess T0", "CRORepMst", item)},
        {"items without a quotation", lost("CRORepItems T0", "CRORepItmQuoteHdr", item + itemNo)},
        {"lines without a quotation",
         lost("CRORepItmQuoteDet T0", "CRORepItmQuoteHdr", item + itemNo)},
        {"fault codes that are not known",
         lost("CRORepItmFaults T0", "CROCodeMaster",
              " WHERE T1.CO = T0.CO AND T1.CodeType = 'F' AND T1.Code = T0.FaultCode")},
        {"technicians that are not known",
         lost("CRORepItmProcess T0", "CROTechMst",
              " WHERE T1.CO = T0.CO AND T1.TechCode = T0.TechCode")},
        {"accounts that are not among the branch's debtors",
         lost("CRORepMst T0" + share, "DEBMaster",
              " WHERE T1.CO = T0.CO AND T1.Branch = COALESCE(S.SHDEB, T0.Branch)"
              " AND T1.Account = T0.Account")},
        {"serial numbers that are not in the branch's stock",
         lost("CRORepItems T0" + share, "STKSerialMst",
              " WHERE T1.CO = T0.CO AND T1.Branch = COALESCE(S.SHSTK, T0.Branch)"
              " AND T1.SerialNo = T0.SerialNo")},
        {"serial numbers without a stock item",
         lost("STKSerialMst T0", "STKMaster",
              " WHERE T1.CO = T0.CO AND T1.Branch = T0.Branch AND T1.StockCode = T0.StockCode"
              " AND T1.LinkCode = T0.LinkCode")},
        {"branch codes that are no numbers", "SELECT COUNT(*) FROM SYSBranch"
                                             " WHERE [Branch] LIKE '%[^0-9]%'"},
        {"received items that do not count the items",
         "SELECT COUNT(*) FROM CRORepMst T0 WHERE T0.ReceiveItems <> (SELECT COUNT(T1.RecID)"
         " FROM CRORepItems T1" +
             item + ")"},
        {"quotation lines that do not add up",
         "SELECT COUNT(*) FROM CRORepItmQuoteDet WHERE ABS(Quantity * PriceExcl - LineTotalExcl)"
         " > 0.005 OR ABS(LineTotalIncl - LineTotalExcl - LineVAT) > 0.005"
         " OR ABS(LineTotalExcl - TotalCostExcl - Profit) > 0.005"},
        {"steps whose time does not cast",
         "SELECT COUNT(*) FROM CRORepItmProcess"
         " WHERE CAST(CONCAT([TranDate], ' ', [TranTime]) AS DATETIME) IS NULL"},
    };
    auto suite = connect("VELSUITE");
    for (const auto& [what, statement] : links) {
        EXPECT_EQ(count(*suite, statement), 0) << what;
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

TEST_F(ProvisionTest, EveryOptionLetterAndEveryLevelOfParametersIsThere) {
    auto suite = connect("VELSUITE");
    for (const char* letter : {"Y", "S", "F", "G", "D", "W", "V", "N", "", "X"}) {
        EXPECT_GE(count(*suite, std::string("SELECT COUNT(*) FROM SYSGrpAccess WHERE [UserGroup] ="
                                            " 'CNTR' AND [Options] = '") +
                                    letter + "'"),
                  1)
            << "letter \"" << letter << '"';
    }
    const char* const levels[] = {
        "SYSParameter WHERE [Branch] = '' AND [ModCode] = ''",
        "SYSParameter WHERE [Branch] = '100' AND [ModCode] = ''",
        "SYSParameter WHERE [Branch] = '' AND [ModCode] IN ('CRD', 'GSM', 'GLG')",
        "SYSParameter WHERE [Branch] <> '' AND [ModCode] NOT IN ('', 'CRD', 'GSM', 'GLG')",
        "SYSGrpParam"};
    for (const char* level : levels) {
        EXPECT_GE(count(*suite, std::string("SELECT COUNT(*) FROM ") + level), 1) << level;
    }
}

TEST_F(ProvisionTest, NewNumbersGoOnBehindTheSampleOrders) {
    auto suite = connect("VELSUITE");
    const auto next = [&](const char* branch, const char* type) {
        const sql::Parameter parameters[] = {{"CO", std::string("01")},
                                             {"BRANCH", std::string(branch)},
                                             {"MODCODE", std::string("CRO")},
                                             {"TXTP", std::string(type)}};
        const auto rows =
            suite->query("EXEC VELMARA_GENERATE_NUMBER :CO, :BRANCH, :MODCODE, :TXTP", parameters);
        return rows.rowCount() == 1 ? rows.integer(0, *rows.columnIndex("NUMBER")) : -1;
    };
    EXPECT_EQ(next("100", "CROMST"), 100501);
    EXPECT_EQ(next("100", "CROMST"), 100502);
    EXPECT_EQ(next("101", "CROMST"), 200501);
    EXPECT_EQ(next("100", "CROQOT"), 501001);
}

TEST_F(ProvisionTest, TextAndPicturesArriveUnharmed) {
    auto suite = connect("VELSUITE");
    const auto user = suite->query("SELECT [UserName] FROM SYSUser WHERE [UserCode] = 'COUNTER2'");
    EXPECT_EQ(user.text(0, 0), "Jörund Ekvåll");
    const auto debtor = suite->query("SELECT [Name] FROM DEBMaster WHERE [Account] = 'C00002'");
    EXPECT_EQ(debtor.text(0, 0), "O'Brackenfell Guest House & Wedding Venue");
    EXPECT_GE(count(*suite, "SELECT COUNT(*) FROM DEBMaster WHERE [Name] LIKE N'%高瀬谷%'"), 5);
    const auto logo = suite->query("SELECT [ImageData] FROM SysRepImages WHERE [ImageCode] ="
                                   " 'IMGLOGO'");
    ASSERT_EQ(logo.rowCount(), 1U);
    EXPECT_EQ(logo.bytes(0, 0).substr(0, 4), "\x89PNG");
    const auto picture = suite->query("SELECT [ImageData] FROM CRORepItmImages");
    EXPECT_EQ(picture.bytes(0, 0).substr(0, 2), "BM");
    EXPECT_EQ(picture.bytes(0, 0).size(), 54U + 64 * 48 * 3);
}
