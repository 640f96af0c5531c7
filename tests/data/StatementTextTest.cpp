#include "data/StatementText.h"
#include "data/DataModules.h"
#include "data/DateTimeText.h"
#include "data/ErrorTexts.h"
#include "data/Errors.h"
#include "data/Prompts.h"
#include "data/Session.h"
#include "platform/seat/Clock.h"
#include "support/FakeServer.h"

#include <QDateTime>

#include <gtest/gtest.h>

using velcro::sql::ColumnType;
using velcro::test::FakeServer;

namespace {

class StatementTextTest : public testing::Test
{
protected:
    StatementTextTest() {
        createDataModules();
        cData->ConnectDB_Common();
        velcro::seat::setClock(QDateTime(QDate(2026, 3, 9), QTime(7, 5, 3, 21)));
        gUserCode = "O'NEAL";
        gPCName = "SEAT-1";
        serverDate("2026-03-01 14:30:59.123");
    }
    ~StatementTextTest() override {
        freeDataModules();
        velcro::seat::setClock({});
        gPrompts = {};
    }
    void serverDate(const std::string& text) {
        server.answer("current_timestamp", [text] {
            velcro::sql::RowSetBuilder builder({{"SDate", ColumnType::DateTime}});
            builder.addBytes(text);
            builder.endRow();
            return builder.take();
        });
    }
    FakeServer server;
};

} // namespace

TEST_F(StatementTextTest, aStampTakesTheDateOfTheServerAndTheTimeOfTheSeat) {
    EXPECT_EQ(sfg_AddDTO(), "'2026/03/01','07:05:03','O''NEAL','SEAT-1')");
    EXPECT_EQ(sfg_UpdateDTO(), "[DTODate]  = '2026/03/01',[DTOTime]  = '07:05:03',"
                               "[DTOUser]  = 'O''NEAL',[DTOMacID] = 'SEAT-1'");
    EXPECT_EQ(sfg_DTO(), "2026/03/01 - 07:05:03 - O'NEAL");
    EXPECT_EQ(server.count("SELECT current_timestamp as SDate"), 3) << "asked anew every time";
}

TEST_F(StatementTextTest, datesAreTextAndCountOverTheEndOfAMonth) {
    EXPECT_EQ(sfg_Date(0), "2026/03/01");
    EXPECT_EQ(sfg_Date(-1), "2026/02/28");
    EXPECT_EQ(sfg_DTOS(""), "20260301");
    EXPECT_EQ(sfg_DTOS("2025/12/31"), "20251231");
    EXPECT_EQ(sfg_STOD("20251231"), "2025/12/31");
    EXPECT_EQ(sfg_TempFileName(), "20260309-070503");
    EXPECT_EQ(sfg_GenerateDTReference(), "20260309070503021");
    serverDate("2026-03-02 00:00:00.000");
    EXPECT_EQ(sfg_Date(0), "2026/03/02") << "at midnight";
    for (const auto& [time, seconds] : std::vector<std::pair<const char*, int>>{
             {"", 0}, {"0:00:01", 1}, {"1:02:03", 3723}, {"23:59:59", 86399}}) {
        EXPECT_EQ(sfg_TimeToSec(time), seconds) << time;
    }
}

TEST_F(StatementTextTest, aServerThatGivesNoDateIsAConversionFailure) {
    server.answer("current_timestamp", {"SDate"}, {});
    EXPECT_EQ(sfg_GetServerDate(), "Not Found");
    EXPECT_THROW(sfg_Date(0), ConversionError);
}

TEST_F(StatementTextTest, valuesSurviveQuoting) {
    EXPECT_EQ(QuotedStr("It's '"), "'It''s '''");
    EXPECT_EQ(QuotedStr(""), "''");
    EXPECT_EQ(QuotedStr(12), "'12'");
    EXPECT_EQ(QuotedStrArray({}), "");
    EXPECT_EQ(QuotedStrArray({"a", "b'c"}), "'a', 'b''c'");
}

TEST_F(StatementTextTest, anErrorNumberIsLookedUpAndItsCommentShown) {
    QStringList shown;
    gPrompts.errorForm = [&](const QString& number, const QString& text, const QString& program,
                             const QString& routine) {
        shown = {number, text, gErrorComment, program, routine};
    };
    gSuite = "VELMARA";
    gSParam[1] = "left over";
    server.answer("[ErrorNo] = '42'", {"ErrorNo", "Message", "Comment"},
                  {{"42", "The till is closed", "Open it first"}});
    sfg_ErrorDlg("&42", "unknown", "CRO100", "Save");
    EXPECT_EQ(shown, (QStringList{"&42", "The till is closed", "Open it first", "CRO100", "Save"}));
    EXPECT_EQ(gSParam[1], "");
    EXPECT_EQ(gErrorMsg + gErrorComment, "");

    sfg_ErrorDlg("&7", "kept", "CRO100", "Save");
    EXPECT_EQ(shown[1], "kept");
    EXPECT_THROW(sfg_ErrorDlg("&x", "text", "CRO100", "Save"), ConversionError);

    server.fail("vcErrorMessages", "No such table.");
    EXPECT_THROW(sfg_GetErrorMessage("1"), velcro::sql::SqlError);
    EXPECT_EQ(shown[0] + shown[1], "999999SQL Error on Table: vcErrorMessages :-\rNo such table.");
}
