// A sweep of an empty till database, read back through the catalogue, and the sweep after it.
#include "schema/Definitions.h"
#include "schema/TillSeat.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>

using velcro::schema::Column;
using velcro::test::EmbeddedDatabase;
using velcro::test::schemaOf;
using velcro::test::TillSeat;

namespace {

/// One till, swept once from empty for all tests.
class SweepTest : public testing::Test
{
protected:
    static void SetUpTestSuite() {
        till = std::make_unique<EmbeddedDatabase>();
        TillSeat seat(till->folder().path().string());
        seat.sweep();
        sent = seat.sent;
        refused = seat.refused;
    }
    static void TearDownTestSuite() { till.reset(); }
    static std::string answer(const std::string& batch) { return till->answer(batch); }

    inline static std::unique_ptr<EmbeddedDatabase> till;
    inline static QStringList sent, refused;
};

/// "CO nvarchar(10)", "GLYear int DEFAULT 0 NOT NULL" of a table, as the catalogue tells them.
const std::string columnTexts =
    "SELECT COLUMN_NAME + ' ' + DATA_TYPE + CASE WHEN CHARACTER_MAXIMUM_LENGTH = -1 THEN '(max)'"
    " WHEN CHARACTER_MAXIMUM_LENGTH BETWEEN 1 AND 8000 THEN '(' + CAST(CHARACTER_MAXIMUM_LENGTH AS "
    "varchar(5))"
    " + ')' ELSE '' END"
    " + CASE WHEN COLUMN_NAME = 'RecID' THEN ' IDENTITY(1, 1)' ELSE '' END"
    " + CASE COLUMN_DEFAULT WHEN '((0))' THEN ' DEFAULT 0' WHEN '('''')' THEN ' DEFAULT '''''"
    " ELSE '' END + CASE IS_NULLABLE WHEN 'NO' THEN ' NOT NULL' ELSE '' END"
    " FROM INFORMATION_SCHEMA.COLUMNS WHERE TABLE_NAME = '";

/// Where a swept database is not as its definitions say: what the later steps have changed.
const std::map<std::string, std::string> changedLater = {
    {"SYSUser.DefBranch", "DefBranch nvarchar(10)"},
    {"STKMaster.Description3", "Description3 nvarchar(150)"},
    {"DEBMaster.ContraDEBAccount", ""},
};
const std::map<std::string, std::string> addedLater = {
    {"DEBMaster", "InterCO nvarchar(1) DEFAULT '' NOT NULL;"
                  "ContraCRDAccount nvarchar(10) DEFAULT '' NOT NULL;"},
    {"TempGLGSplits", "Branch nvarchar(10) DEFAULT '' NOT NULL;"},
    {"TempGRVDBoxes", "BoxLabel nvarchar(50) DEFAULT '' NOT NULL;"},
    {"TempPurOrdHdrRule", "SalesOrder nvarchar(1) DEFAULT '' NOT NULL;"},
    {"TempDocDet", "IBTReqNo int DEFAULT 0 NOT NULL;"},
};

std::string expectedColumns(const velcro::schema::TableDefinition& table) {
    const std::string name = table.name;
    std::string text;
    for (const Column& column : columnsOf(table)) {
        const auto changed = changedLater.find(name + "." + column.name.toStdString());
        const std::string line = changed == changedLater.end()
                                     ? (column.name + " " + column.type).toStdString()
                                     : changed->second;
        text += line.empty() ? "" : line + ";";
    }
    const auto added = addedLater.find(name);
    text += added == addedLater.end() ? "" : added->second;
    text.pop_back();
    return text;
}

} // namespace

TEST_F(SweepTest, anEmptyDatabaseGetsEveryTableColumnAndKey) {
    EXPECT_TRUE(refused.isEmpty()) << refused.join('\n').toStdString();
    std::size_t tables = 0;
    for (const auto* family : velcro::schema::families) {
        for (const auto& table : family->tables) {
            const std::string name = table.name;
            // A second definition of a table that is there by then makes nothing.
            if (std::string(table.otherwise).empty()) {
                ++tables;
                EXPECT_EQ(answer(columnTexts + name + "' ORDER BY ORDINAL_POSITION"),
                          expectedColumns(table))
                    << name;
            }
            EXPECT_EQ(answer("SELECT COL_NAME(C.object_id, C.column_id) FROM sys.indexes I"
                             " INNER JOIN sys.index_columns C ON C.object_id = I.object_id AND"
                             " C.index_id = I.index_id WHERE I.is_primary_key = 1 AND I.name = '" +
                             name + "_idx00'")
                          .substr(0, 5),
                      columnsOf(table).front().name.toStdString())
                << name;
        }
    }
    EXPECT_EQ(tables, 159);
}

// Counted by hand from the list of tables that sites are given, not from this program's own.
TEST_F(SweepTest, theCountsOfEachFamilyAreThoseOfTheList) {
    EXPECT_EQ(answer("SELECT UPPER(LEFT(C.TABLE_NAME, 3)), COUNT(DISTINCT C.TABLE_NAME), COUNT(*),"
                     " SUM(CASE WHEN DATA_TYPE LIKE '%char' THEN 1 ELSE 0 END),"
                     " SUM(CASE WHEN DATA_TYPE LIKE '%char' AND CHARACTER_MAXIMUM_LENGTH > 0"
                     " THEN CHARACTER_MAXIMUM_LENGTH ELSE 0 END),"
                     " SUM(CASE WHEN DATA_TYPE LIKE '%char' AND CHARACTER_MAXIMUM_LENGTH = -1"
                     " THEN 1 ELSE 0 END),"
                     " SUM(CASE DATA_TYPE WHEN 'float' THEN 1 ELSE 0 END),"
                     " SUM(CASE DATA_TYPE WHEN 'int' THEN 1 ELSE 0 END),"
                     " SUM(CASE IS_NULLABLE WHEN 'NO' THEN 1 ELSE 0 END),"
                     " SUM(CASE WHEN COLUMN_DEFAULT IS NULL THEN 0 ELSE 1 END)"
                     " FROM INFORMATION_SCHEMA.COLUMNS C"
                     " GROUP BY UPPER(LEFT(C.TABLE_NAME, 3)) ORDER BY 1"),
              // family, tables, columns, texts, their lengths, "max", float, int, not null, default
              "DEB|6|273|218|5747|0|40|14|56|50;"
              "DOC|8|452|280|9070|9|123|46|169|161;"
              "IMP|2|271|136|4355|1|112|23|135|133;"
              "ORD|1|25|18|343|0|2|5|7|6;"
              "POS|22|787|468|9724|1|249|70|319|297;"
              "STK|28|677|453|8151|3|138|84|211|194;"
              "SVR|1|31|29|1513|3|0|2|2|1;"
              "SYS|43|544|425|56260|8|36|67|107|60;"
              "TEM|48|1880|971|25356|11|639|266|908|860");
    EXPECT_EQ(answer("SELECT UPPER(LEFT(T.name, 3)), COUNT(DISTINCT I.name), COUNT(*)"
                     " FROM sys.indexes I INNER JOIN sys.tables T ON T.object_id = I.object_id"
                     " INNER JOIN sys.index_columns C ON C.object_id = I.object_id"
                     " AND C.index_id = I.index_id WHERE I.is_unique = 0"
                     " GROUP BY UPPER(LEFT(T.name, 3)) ORDER BY 1"),
              "DEB|8|31;DOC|18|98;IMP|3|14;POS|44|188;STK|30|144;SVR|4|11;SYS|38|113;TEM|61|337");
}

TEST_F(SweepTest, everyIndexHasItsKeyButThoseWhoseNameIsTaken) {
    EXPECT_EQ(velcro::schema::indexes().size(), 211);
    std::map<QString, QString> keys;
    for (const auto& index : velcro::schema::indexes()) {
        keys.emplace(index.name.toLower(), index.key); // the first of a name wins
    }
    for (const auto& [name, key] : keys) {
        const std::string told =
            answer("SELECT '[' + COL_NAME(C.object_id, C.column_id) + ']' FROM sys.indexes I"
                   " INNER JOIN sys.index_columns C ON C.object_id = I.object_id"
                   " AND C.index_id = I.index_id WHERE I.is_unique = 0 AND I.name = '" +
                   name.toStdString() + "' ORDER BY C.index_column_id");
        EXPECT_EQ(QString::fromStdString(told).replace(";", ", ").toLower(), key.toLower())
            << name.toStdString();
    }
    EXPECT_EQ(answer("SELECT COUNT(*) FROM sys.indexes WHERE object_id ="
                     " OBJECT_ID('SYSDefAltForms')"),
              "1")
        << "its key alone";
}

TEST_F(SweepTest, theNextSweepSendsWhatIsSentEachTimeAndNothingElse) {
    const std::string before = schemaOf(till->connection());
    answer("INSERT INTO TempPURXPODetPrice (CO) VALUES ('01');"
           "INSERT INTO TempPurOrdDet (CO) VALUES ('01')");
    TillSeat seat(till->folder().path().string());
    seat.sweep();
    QStringList beginnings;
    for (const QString& statement : seat.sent) {
        beginnings.append(statement.section('\n', 0, 0).trimmed().left(61));
    }
    EXPECT_EQ(beginnings.join('\n').toStdString(),
              "DROP TABLE [TempPURXPODetPrice]\n"
              "CREATE TABLE [dbo].[TempPURXPODetPrice] ([RecID] int IDENTITY\n"
              "ALTER TABLE [dbo].[TempPURXPODetPrice]  ADD CONSTRAINT [TempP\n"
              "ALTER TABLE [dbo].[SYSCardDevices]  ALTER COLUMN [HostAddress\n"
              "ALTER TABLE [dbo].[SvrTrig]  ALTER COLUMN [Description1] nvar\n"
              "ALTER TABLE [dbo].[SYSParameter]  ALTER COLUMN [ParamValue] n\n"
              "ALTER TABLE [dbo].[STKMaster]  ALTER COLUMN [OnlineURL] nvarc\n"
              "ALTER TABLE [dbo].[SYSUserParam]  ALTER COLUMN [ParamValue] n\n"
              "ALTER TABLE [dbo].[SYSGrpParam]  ALTER COLUMN [ParamValue] nv\n"
              "ALTER TABLE [dbo].[SvrTrig]  ALTER COLUMN [Description1] nvar\n"
              "CREATE NONCLUSTERED INDEX [TempPURXPODetPrice_idx01] ON [dbo]\n"
              "IF  EXISTS ( SELECT * FROM sys.objects   WHERE object_id = OB\n"
              "CREATE PROCEDURE dbo.stkproc_STK_GetStockData\n"
              "IF EXISTS ( SELECT [RECID] FROM SYSTillControl WHERE [PCName]");
    EXPECT_TRUE(seat.refused.isEmpty());
    EXPECT_EQ(schemaOf(till->connection()), before);
    EXPECT_EQ(answer("SELECT COUNT(*) FROM TempPURXPODetPrice"), "0") << "made anew";
    EXPECT_EQ(answer("SELECT COUNT(*) FROM TempPurOrdDet"), "1");
}

TEST_F(SweepTest, statementsAreSentInTheirOrderAndInTheirWords) {
    // Before STKMaster only the four names are dropped, which are not there.
    EXPECT_EQ(sent.at(0).left(52), "CREATE TABLE [dbo].[DOCHeader] ([RecID] int IDENTITY");
    EXPECT_TRUE(
        sent.contains("CREATE TABLE [dbo].[SYSCurrencyRates] ([RecID] int IDENTITY(1, 1) NOT NULL, "
                      "[CCYCode] nvarchar(5), [CCYRateDate] nvarchar(10), "
                      "[CCYRate] float DEFAULT 0 NOT NULL )"));
    EXPECT_TRUE(
        sent.contains("CREATE TABLE [dbo].[SYSSaveGrids] ([RecID] int IDENTITY(1, 1) NOT NULL, "
                      "[CO] nvarchar(10) NOT NULL, [UserCode] nvarchar(10) NOT NULL, "
                      "[ScreenID] nvarchar(20) NOT NULL, [GridSettings] ntext NOT NULL )"));
    EXPECT_TRUE(sent.contains("ALTER TABLE [dbo].[SYSBranch]  ADD CONSTRAINT "
                              "[SYSBranch_idx00] PRIMARY KEY ([RecID])"));
    const auto place = [](const char* beginning) {
        for (int i = 0; i < sent.size(); ++i) {
            if (sent.at(i).startsWith(QLatin1String(beginning))) {
                return i;
            }
        }
        return -1;
    };
    const char* inOrder[] = {"CREATE TABLE [dbo].[SvrTrig]",
                             "CREATE TABLE [dbo].[SYSAudit]",
                             "CREATE TABLE [dbo].[DEBMaster]",
                             "CREATE TABLE [dbo].[STKMaster]",
                             "CREATE TABLE [dbo].[POSAirtimeMaster]",
                             "CREATE TABLE [dbo].[DOCSignatures]",
                             "CREATE TABLE [dbo].[TempDocSizes]",
                             "ALTER TABLE [dbo].[DebMaster]  DROP COLUMN [ContraDEBAccount]",
                             "ALTER TABLE [dbo].[TempDocDet] ADD [IBTReqNo] int NOT NULL DEFAULT",
                             "ALTER TABLE [dbo].[SYSUser]  ALTER COLUMN [DefBranch] nvarchar(10)",
                             "ALTER TABLE [dbo].[STKMaster]  ALTER COLUMN [Description3]",
                             "CREATE NONCLUSTERED INDEX [DEBBalance_idx01]",
                             "CREATE NONCLUSTERED INDEX [TempPURXPOHdrRule_idx01]",
                             "IF  EXISTS ("};
    int before = -1;
    for (const char* beginning : inOrder) {
        EXPECT_GT(place(beginning), before) << beginning;
        before = place(beginning);
    }
}

TEST_F(SweepTest, theStoredProcedureListsStockWithItsPrice) {
    answer(
        "INSERT INTO STKMaster (CO, Branch, StockCode, LinkCode, StockType, Status, Description1,"
        " SuppCode, Barcode, Property10, LastCostExcl, AvgCostExcl) VALUES"
        " ('01', '100', 'DRILL', '', 'N', 'A', 'Drill 500 W', 'S-1', '600', 'RV', 10, 12),"
        " ('01', '100', 'CRATE', '', 'E', 'A', 'Crate', 'S-2', '601', '', 1, 2),"
        " ('01', '100', 'KIT', '', 'K', 'A', 'Kit of drill', 'S-3', '602', '', 3, 4),"
        " ('01', '100', 'PROMO', '', 'P', 'A', 'Promotion', '', '', '', 0, 0),"
        " ('01', '100', 'GONE', '', 'N', 'X', 'Gone', '', '', '', 0, 0),"
        " ('01', '100', 'BARE', '', 'N', 'A', 'Without a price', '', '', '', 0, 0)");
    answer("INSERT INTO STKPrice (CO, Branch, StockCode, LinkCode, PriceCode, Excl, Incl) SELECT"
           " CO, Branch, StockCode, LinkCode, 'A', 100, 115 FROM STKMaster"
           " WHERE StockCode <> 'BARE'");
    const struct
    {
        const char* arguments;
        const char* stockCodes;
    } calls[] = {
        {"", "CRATE;DRILL;KIT"},
        {", @EmptiesTill = 1", "CRATE;KIT"},
        {", @RetnRows = 2", "CRATE;DRILL"},
        {", @RetnRows = 1, @Start = 'drill'", "DRILL;KIT"},
        {", @RetnRows = 1, @SearchField = 'StockCode'", "CRATE;DRILL;KIT"},
        {", @RetnRows = 1, @SearchText = 'zzz'", "CRATE;DRILL;KIT"},
        {", @SearchField = 'SuppCode', @SearchText = '-3'", "KIT"},
        {", @SearchField = 'Barcode', @SearchText = '60'", "CRATE;DRILL;KIT"},
        {", @SearchField = 'Units', @SearchText = '0'", ""},
        {", @StockCode = 'rill'", "DRILL;KIT"},
        {", @ReturnsVoucher = 1", "CRATE;DRILL;KIT"},
        {", @ReturnsVoucher = 1, @PropCode = 'rv'", "DRILL"},
    };
    for (const auto& [arguments, stockCodes] : calls) {
        EXPECT_EQ(till->answer(std::string("EXEC stkproc_STK_GetStockData @CO = '01',"
                                           " @Branch = '100', @PriceCode = 'A',"
                                           " @CostMethod = 'L'") +
                                   arguments,
                               {}, "StockCode"),
                  stockCodes)
            << arguments;
    }
    EXPECT_EQ(till->answer("EXEC stkproc_STK_GetStockData '01', '100', 'A', 'A',"
                           " @StockCode = 'CRATE'",
                           {}, "StockCode, CostExcl, Excl, Incl"),
              "CRATE|2|100|115");
}
