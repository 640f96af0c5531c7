#include "data/DataModules.h"
#include "data/DateTimeText.h"
#include "data/ErrorTexts.h"
#include "data/Errors.h"
#include "data/Prompts.h"
#include "data/RunBatch.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "data/SysLoadData.h"
#include "platform/seat/Clock.h"
#include "support/Desk.h"

#include <QDate>
#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

namespace {

class DeskBatchTest : public testing::Test
{
protected:
    ~DeskBatchTest() override { velcro::seat::setClock({}); }

    static QString addTechnician(const QString& code, const QString& name) {
        return "INSERT INTO CROTechMst ([CO], [TechCode], [TechName]) VALUES ('01', " +
               QuotedStr(code) + ", " + QuotedStr(name) + ")";
    }
    static QString technicians(const QString& codes) {
        return velcro::test::Desk::suite(
            "SELECT COUNT(*) FROM CROTechMst WITH (NOLOCK) WHERE [TechCode] LIKE " +
            QuotedStr(codes));
    }
    QString written(const char* name) const {
        QFile file(desk.workingFolder() + name);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : "no file";
    }

    velcro::test::Desk desk;
};

} // namespace

TEST_F(DeskBatchTest, aBatchIsThereWholeOrNotAtAll) {
    sfg_AddSQL(addTechnician("W1", "Ann"), "NEW");
    sfg_AddSQL(addTechnician("W2", "Ben"), "");
    EXPECT_TRUE(gData->vel_ExecSQL(1));
    EXPECT_EQ(technicians("W_"), "2");

    const std::vector<std::pair<QString, const char*>> failures = {
        {addTechnician("H2-IS-TOO-LONG", "Ben"), "String or binary data would be truncated"},
        {"INSERT INTO CRONoTable ([CO]) VALUES ('01')", "Invalid object name 'CRONoTable'."},
        {"UPDATE CROTechMst SET [Nickname] = 'B'", "Invalid column name 'Nickname'."},
        {"UPDATE CROTechMst SET [CO] = NULL", "Cannot insert the value NULL into column 'CO'"},
        {"UPDATE CROProcessMst SET [ProcessSeq] = 'first'", "Conversion failed"},
        {"UPDATE CROTechMst SOT [CO] = '1'", "Incorrect syntax near"},
    };
    for (const auto& [statement, reason] : failures) {
        SCOPED_TRACE(reason);
        desk.shown.clear();
        // Nobody but the program makes these folders, and somebody may have tidied them away.
        QDir(desk.workingFolder() + "SQL").removeRecursively();
        sfg_AddSQL(addTechnician("H1", "Ann"), "NEW");
        sfg_AddSQL(statement, "");
        sfg_AddSQL(addTechnician("H3", "Cleo"), "");
        const QString batch = gSQL.Text();
        EXPECT_FALSE(gData->vel_ExecSQL(1));
        EXPECT_EQ(technicians("H%"), "0");
        ASSERT_EQ(desk.shown.size(), 1);
        EXPECT_TRUE(
            desk.shown[0].startsWith(QLatin1String("box|SQL Error\r") + QLatin1String(reason)))
            << desk.shown[0].toStdString();
        EXPECT_EQ(written("SQL/SQLError-Velmara.TXT"), batch);
        EXPECT_TRUE(gSQL.isEmpty());
    }
    EXPECT_TRUE((sfg_AddSQL(addTechnician("W3", "Cleo"), "NEW"), gData->vel_ExecSQL(1)));
    EXPECT_EQ(technicians("W_"), "3") << "the connection works on";
}

TEST_F(DeskBatchTest, theOtherDatabasesFailInTheirOwnWay) {
    sfg_AddSQL("UPDATE vcVersions SET [Version] = '9.9.9' WHERE [PgmName] = 'velCRO'", "NEW");
    sfg_AddSQL("UPDATE vcNoTable SET [A] = 1", "");
    EXPECT_FALSE(cData->cmn_ExecSQL());
    EXPECT_TRUE(desk.shown.isEmpty());
    EXPECT_TRUE(written("CMNSQLError.TXT").endsWith("UPDATE vcNoTable SET [A] = 1 ;"));
    EXPECT_EQ(desk.common("SELECT [Version] FROM vcVersions WHERE [PgmName] = 'velCRO'"),
              "14.47.41");
    EXPECT_TRUE(cData->cmn_ExecSQL()) << "an empty buffer runs as an empty statement";

    sfg_AddSQL("CREATE TABLE [TillWork] ([A] int)", "NEW");
    EXPECT_FALSE(tData->til_ExecSQL(1));
    EXPECT_EQ(gSQL.Count(), 1) << "without a till the buffer keeps its text";
    tData->ConnectDB_TIL();
    EXPECT_TRUE(tData->til_ExecSQL(1)) << gErrorMsg.toStdString();
    sfg_AddSQL("INSERT INTO [TillWork] VALUES (1)", "NEW");
    sfg_AddSQL("INSERT INTO [TillWork] VALUES ('x')", "");
    EXPECT_FALSE(tData->til_ExecSQL(1));
    EXPECT_TRUE(gErrorMsg.startsWith("DataUTIL.til_ExecSQL - Error Executing SQL Command. Reason: "
                                     "Conversion failed"))
        << gErrorMsg.toStdString();
    EXPECT_TRUE(written("SQL/SQLError-TILL.log").startsWith("INSERT INTO [TillWork] VALUES (1) ;"));
    tData->tQuery1.SQL.Add("SELECT COUNT(*) FROM [TillWork]");
    tData->tQuery1.Open();
    EXPECT_EQ(tData->tQuery1.Fields(0).AsInteger(), 0);
    EXPECT_TRUE(desk.shown.isEmpty());
}

TEST_F(DeskBatchTest, whatWasTypedComesBackAsItWasTyped) {
    const char* const texts[] = {
        "O'Brien's 'best'",
        "'; DROP TABLE CROTechMst; --",
        "50% /* of */ [it] -- now",
        ":CO @CO ?",
        "C:\\temp\\x",
        "Größe 7½ “Ω” 修理 🙂",
        "two\nlines\r\nand\ttabs",
        "\nGO\n",
    };
    for (const char* text : texts) {
        const QString name = QString::fromUtf8(text);
        sfg_AddSQL("DELETE FROM CROTechMst WHERE [TechCode] = 'Q1'", "NEW");
        sfg_AddSQL(addTechnician("Q1", name), "");
        ASSERT_TRUE(gData->vel_ExecSQL(1)) << desk.shown.join("|").toStdString();
        EXPECT_EQ(desk.suite("SELECT [TechName] FROM CROTechMst WHERE [TechCode] = 'Q1'"), name);
        EXPECT_TRUE(sld_CheckDuplicates(
            "SELECT [RecID] FROM CROTechMst WITH (NOLOCK) WHERE [TechName] = " + QuotedStr(name),
            "CROTechMst"))
            << text;
    }
}

TEST_F(DeskBatchTest, aStampHasTheServersDateAndTheSeatsTime) {
    velcro::seat::setClock(QDateTime(QDate(2001, 2, 3), QTime(4, 5, 6)));
    const auto stamp = [this] {
        return desk.suite("SELECT [DTODate] + '|' + [DTOTime] + '|' + [DTOUser] + '|' + [DTOMacID] "
                          "FROM CRORepMst WHERE [CRONo] = 'S1'");
    };
    const auto expected = [](const char* time, const char* user) {
        const QString date = QDate::currentDate().toString(QStringLiteral("yyyy/MM/dd"));
        return date + "|" + time + "|" + user + "|" + gPCName;
    };
    sfg_AddSQL("INSERT INTO CRORepMst ([CO], [Branch], [CRONo], [DTODate], [DTOTime], [DTOUser], "
               "[DTOMacID]) VALUES ('01', '100', 'S1', " +
                   sfg_AddDTO(),
               "NEW");
    ASSERT_TRUE(gData->vel_ExecSQL(1)) << desk.shown.join("|").toStdString();
    EXPECT_EQ(stamp(), expected("04:05:06", "COUNTER1"));

    velcro::seat::setClock(QDateTime(QDate(2001, 2, 3), QTime(23, 59, 59)));
    gUserCode = "O'HARA";
    sfg_AddSQL("UPDATE CRORepMst SET " + sfg_UpdateDTO() + " WHERE [CRONo] = 'S1'", "NEW");
    ASSERT_TRUE(gData->vel_ExecSQL(1)) << desk.shown.join("|").toStdString();
    EXPECT_EQ(stamp(), expected("23:59:59", "O'HARA"));
    EXPECT_EQ(sfg_TempFileName(), "20010203-235959");
}

TEST_F(DeskBatchTest, daysAreCountedFromTheServersDate) {
    const QDate today = QDate::currentDate();
    for (const int days : {0, 1, -1, -today.day(), 366, -1000}) {
        EXPECT_EQ(sfg_Date(days), today.addDays(days).toString(QStringLiteral("yyyy/MM/dd")));
    }
    EXPECT_EQ(sfg_DTOS(""), today.toString(QStringLiteral("yyyyMMdd")));
}

TEST_F(DeskBatchTest, numberedErrorsHaveTheirTextInTheCommonDatabase) {
    EXPECT_TRUE(sfg_GetErrorMessage("100001"));
    EXPECT_EQ(gErrorMsg, "The database did not answer in time.");
    EXPECT_TRUE(gErrorComment.startsWith("Try again in a moment."));
    EXPECT_FALSE(sfg_GetErrorMessage("1"));
    EXPECT_EQ(gErrorMsg + gErrorComment, "");
    sfg_ErrorDlg("&100002", "unknown", "CRO100A", "Save");
    EXPECT_EQ(desk.shown.last(), "&100002|The record has been removed by another user.");
    EXPECT_THROW(sfg_GetErrorMessage("none"), velcro::sql::SqlError) << "no number at all";
    EXPECT_TRUE(desk.shown.last().startsWith("999999|SQL Error on Table: vcErrorMessages :-\r"));
}
