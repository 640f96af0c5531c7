// Databases that earlier versions, other programs and people have left: what a sweep makes of them,
// and that their rows are still there.
#include "schema/TillSeat.h"
#include "support/FailureOf.h"

#include <gtest/gtest.h>

#include <memory>

using velcro::test::EmbeddedDatabase;
using velcro::test::TillSeat;

namespace {

const char* const olderTill[] = {
    "CREATE TABLE STKMaster (RecID int IDENTITY(1, 1) NOT NULL, CO nvarchar(5), Branch nvarchar(5),"
    " StockCode nvarchar(25), LinkCode nvarchar(25), Description1 nvarchar(60), Description2"
    " nvarchar(200), Description3 varchar(50), OnlineURL nvarchar(100), AlcoholVolume float)",
    "INSERT INTO STKMaster (CO, Branch, StockCode, Description1, Description2, OnlineURL)"
    " VALUES ('01', '100', 'DRILL', 'Drill 500 W', 'With a case', 'http://x/y')",
    "CREATE TABLE SysUser (RecID int IDENTITY(1, 1) NOT NULL, UserCode nvarchar(10),"
    " DefCO nvarchar(5), DefBranch nvarchar(5))",
    "INSERT INTO SysUser (UserCode, DefBranch) VALUES ('COUNTER1', '100')",
    "CREATE TABLE SYSSettings (RecID int IDENTITY(1, 1) NOT NULL, DefCO varchar(5))",
    "CREATE TABLE DEBMaster (RecID int IDENTITY(1, 1) NOT NULL, Account nvarchar(10),"
    " ContraDEBAccount nvarchar(10) DEFAULT '' NOT NULL, Reason nvarchar(50))",
    "INSERT INTO DEBMaster (Account, ContraDEBAccount) VALUES ('C00001', 'C00002')",
    // tables of the past, and of others
    "CREATE TABLE TempPurOrdHdrClm (A int)", "CREATE TABLE TempPurOrdDetClm (A int)",
    "CREATE TABLE TempPurOrdDetDeals (A int)",
    "CREATE TABLE Loyalty2 (A int, Description1 nvarchar(300), Description2 varchar(300),"
    " Description3 ntext)",
    "INSERT INTO Loyalty2 VALUES (1, 'short', 'kept', 'kept too')",
    "CREATE TABLE CRORepMst (RecID int, CO nvarchar(5))",
    // indexes in the way
    "CREATE TABLE POSTillMaster (RecID int IDENTITY(1, 1) NOT NULL PRIMARY KEY, CO nvarchar(5),"
    " Branch nvarchar(5), TillNo nvarchar(5))",
    "CREATE INDEX Own ON POSTillMaster (Branch)",
    "CREATE UNIQUE INDEX Single ON POSTillMaster (CO, Branch, TillNo)",
    "INSERT INTO POSTillMaster (CO, Branch, TillNo) VALUES ('01', '100', '01')",
    // the right names with other columns
    "CREATE TABLE SYSTillControl (PCName nvarchar(50), DBVersion nvarchar(20))",
    "INSERT INTO SYSTillControl VALUES ('SEAT1', '9')", "CREATE TABLE POSVoidsHdr (Till int)",
    "INSERT INTO POSVoidsHdr VALUES (7)"};

/// A till with all this in it, swept once for all tests.
class OlderTillTest : public testing::Test
{
protected:
    static void SetUpTestSuite() {
        till = std::make_unique<EmbeddedDatabase>();
        for (const char* statement : olderTill) {
            ASSERT_EQ(answer(statement).find("error"), std::string::npos) << statement;
        }
        TillSeat seat(till->folder().path().string());
        seat.sweep();
        refused = seat.refused;
    }
    static void TearDownTestSuite() { till.reset(); }

    static std::string answer(const std::string& batch) { return till->answer(batch); }
    /// "nvarchar|10|YES|NULL"
    static std::string column(const std::string& table, const std::string& name) {
        return answer("SELECT DATA_TYPE, CHARACTER_MAXIMUM_LENGTH, IS_NULLABLE, COLUMN_DEFAULT"
                      " FROM INFORMATION_SCHEMA.COLUMNS WHERE TABLE_NAME = '" +
                      table + "' AND COLUMN_NAME = '" + name + "'");
    }
    static std::string indexesOf(const std::string& table) {
        return answer("SELECT name FROM sys.indexes WHERE object_id = OBJECT_ID('" + table +
                      "') AND is_primary_key = 0 ORDER BY name");
    }

    inline static std::unique_ptr<EmbeddedDatabase> till;
    inline static QStringList refused;
};

} // namespace

TEST_F(OlderTillTest, columnsAreAddedWidenedAndNarrowed) {
    const struct
    {
        const char *table, *name, *type;
    } columns[] = {
        {"STKMaster", "CO", "nvarchar|10|YES|NULL"},
        {"STKMaster", "Description1", "nvarchar|150|YES|NULL"},
        {"STKMaster", "Description2", "nvarchar|150|YES|NULL"},
        {"STKMaster", "Description3", "varchar|50|YES|NULL"},
        {"STKMaster", "OnlineURL", "nvarchar|-1|YES|NULL"},
        {"STKMaster", "AlcoholVolume", "float|NULL|YES|NULL"},
        {"STKMaster", "IntegrationFlags", "nvarchar|15|NO|('NNNNNNNNNNNNNNN')"},
        {"STKMaster", "PalletQuantity", "int|NULL|NO|((0))"},
        {"STKMaster", "Barcode", ""},
        {"SYSUser", "DefCO", "nvarchar|5|YES|NULL"},
        {"SYSUser", "DefBranch", "nvarchar|10|YES|NULL"},
        {"SYSUser", "EMail", "nvarchar|1|NO|('')"},
        {"SYSSettings", "DefCO", "varchar|5|YES|NULL"},
        {"DEBMaster", "ContraDEBAccount", "nvarchar|10|NO|('')"},
        {"DEBMaster", "Reason", "nvarchar|250|YES|NULL"},
        {"DEBMaster", "BeesAccountID", "nvarchar|50|NO|('')"},
        {"Loyalty2", "Description1", "nvarchar|150|YES|NULL"},
        {"Loyalty2", "Description2", "varchar|300|YES|NULL"},
        {"CRORepMst", "CO", "nvarchar|5|YES|NULL"},
        {"POSTillMaster", "CO", "nvarchar|10|YES|NULL"},
        {"POSTillMaster", "Branch", "nvarchar|10|YES|NULL"},
    };
    for (const auto& [table, name, type] : columns) {
        EXPECT_EQ(column(table, name), type) << table << "." << name;
    }
}

TEST_F(OlderTillTest, everyRowIsStillThere) {
    const struct
    {
        const char *select, *rows;
    } reads[] = {
        {"SELECT CO, StockCode, Description1, Description2, OnlineURL, IsHidden, PalletQuantity"
         " FROM STKMaster",
         "01|DRILL|Drill 500 W|With a case|http://x/y|N|0"},
        {"SELECT UserCode, DefBranch FROM SYSUser", "COUNTER1|100"},
        {"SELECT Account, ContraDEBAccount FROM DEBMaster", "C00001|C00002"},
        {"SELECT * FROM Loyalty2", "1|short|kept|kept too"},
        {"SELECT CO, Branch, TillNo FROM POSTillMaster", "01|100|01"},
        {"SELECT * FROM POSVoidsHdr", "7|"},
        // Without its LastUpgrade the version cannot be recorded: this seat sweeps each time.
        {"SELECT * FROM SYSTillControl", "SEAT1|9"},
    };
    for (const auto& [select, rows] : reads) {
        EXPECT_EQ(answer(select), rows) << select;
    }
}

TEST_F(OlderTillTest, tablesOfThePastGoAndAllOthersAreThere) {
    for (const char* table : {"TempPurOrdHdrClm", "TempPurOrdDetClm", "TempPurOrdDetDeals"}) {
        EXPECT_EQ(answer(std::string("SELECT OBJECT_ID('") + table + "')"), "NULL") << table;
    }
    EXPECT_EQ(answer("SELECT COUNT(*) FROM sys.tables"), "161") << "159 and two of others";
}

TEST_F(OlderTillTest, indexesAreMadeWhereTheirColumnsAreAndThoseInTheWayStay) {
    EXPECT_EQ(indexesOf("STKMaster"), "STKMaster_idx01");
    EXPECT_EQ(indexesOf("POSTillMaster"), "Own;POSTillMaster_idx01;Single");
    EXPECT_EQ(indexesOf("POSVoidsHdr"), "");
    EXPECT_TRUE(refused.contains("DROP INDEX [ Own] ON [dbo].[POSTillMaster] "));
    EXPECT_EQ(answer("SELECT COUNT(*) FROM sys.indexes WHERE object_id = OBJECT_ID('STKMaster')"
                     " AND is_primary_key = 1"),
              "0")
        << "a table that was there is given no key";
}

TEST_F(OlderTillTest, aDescriptionThatCannotBeChangedEndsTheSweepInWords) {
    EmbeddedDatabase database;
    TillSeat seat(database.folder().path().string());
    database.answer("CREATE TABLE Other (A int, B nvarchar(400))");
    database.answer("CREATE VIEW Shown AS SELECT A, B AS Description1 FROM Other");
    const QString failure = failureOf([&] { seat.sweep(); });
    EXPECT_TRUE(failure.startsWith(
        "[SysTillDBMods.tb_Update_STKDesc_ColLength] SQL Error reading object "
        "\"INFORMATION_SCHEMA\". Reason: [SysTillDBMods.tb_Update_STKDesc_ColLength] SQL Error "
        "Reading \"INFORMATION_SCHEMA\". Reason: DataUTIL.til_ExecSQL - Error Executing SQL "
        "Command. Reason: "))
        << failure.toStdString();
    EXPECT_EQ(database.answer("SELECT COUNT(*) FROM SYSTillControl"), "0") << "nothing recorded";
    EXPECT_EQ(database.answer("SELECT COUNT(*) FROM sys.indexes WHERE is_unique = 0"), "0");

    database.answer("DROP VIEW Shown");
    database.answer("CREATE TABLE Wide (Description1 nvarchar(400))");
    database.answer("INSERT INTO Wide VALUES (REPLICATE('x', 160))");
    EXPECT_TRUE(failureOf([&] { seat.sweep(); }).contains("SQL Error Reading"));
    EXPECT_EQ(database.answer("SELECT LEN(Description1) FROM Wide"), "160");

    database.answer("UPDATE Wide SET Description1 = 'x'");
    seat.sweep();
    EXPECT_EQ(database.answer("SELECT DBVersion FROM SYSTillControl"), "14.47.41");
}

// Versions are compared as text.
TEST_F(OlderTillTest, theVersionOnRecordDecides) {
    gTillDBVersion = requiredTillDBVersion;
    const struct
    {
        const char* recorded;
        bool behind;
    } versions[] = {{"", true},       {"14.47.40", true}, {"14.47.41", false}, {"14.47.5", false},
                    {"9.1.1", false}, {"15.0.0", false},  {"14.47", true},     {"v14", false},
                    {" 99", true},    {"x", false},       {"14.47.41 ", false}};
    for (const auto& [recorded, behind] : versions) {
        gLocalDBVersion = recorded;
        EXPECT_EQ(tillSchemaIsBehind(), behind) << recorded;
    }
}
