#include "data/DayEnd.h"

#include "data/DateTimeText.h"
#include "data/PeriodAndTax.h"
#include "data/Session.h"
#include "platform/seat/Programs.h"
#include "support/Desk.h"

#include <gtest/gtest.h>

using velcro::test::Desk;

namespace {

class DayEndTest : public testing::Test
{
protected:
    void SetUp() override {
        Desk::onSuite("DELETE FROM SYSEODLog");
        velcro::seat::setProgramFinder([this](const QString& name) { return path + name; });
        velcro::seat::setProgramStarter([this](const QString& program, const QStringList& given) {
            started << program + " " + given.join(' ');
            return true;
        });
    }
    ~DayEndTest() override {
        velcro::seat::setProgramFinder({});
        velcro::seat::setProgramStarter({});
    }
    static QString ofRow(const QString& column) {
        return Desk::suite("SELECT [" + column +
                           "] FROM SYSEODLog WHERE [CO] = '01' AND [Branch] "
                           "= '100'");
    }

    Desk desk;
    QString path = QStringLiteral("/suite/");
    QStringList started;
};

} // namespace

TEST_F(DayEndTest, theFirstSeatOfTheDayAsksForYesterday) {
    EXPECT_TRUE(sfvel_Check_EndOfDay_Run());
    EXPECT_EQ(gEODInitiated, "Y");
    EXPECT_EQ(started, QStringList("/suite/velEOD 01 100"));
    EXPECT_EQ(ofRow("RunDate"), sfg_Date(-1));
    EXPECT_EQ(ofRow("Status"), "X");
    EXPECT_EQ(ofRow("DTODate"), sfg_Date(0));
    EXPECT_EQ(ofRow("DTOUser") + ofRow("DTOMacID"), "COUNTER1" + gPCName);
    EXPECT_EQ(ofRow("StartDate") + ofRow("EndTime") + ofRow("LogData"), "");
    sfvel_GetPeriod(sfg_Date(-1));
    EXPECT_EQ(ofRow("MonthEnd"), gSParam[2] == sfg_Date(-1) ? "Y" : "N");

    EXPECT_TRUE(sfvel_Check_EndOfDay_Run());
    EXPECT_EQ(gEODInitiated, "N") << "asked for already";
    EXPECT_EQ(started.size(), 1);
    EXPECT_EQ(Desk::suite("SELECT COUNT(*) FROM SYSEODLog"), "1");
}

TEST_F(DayEndTest, yesterdayWasTheLastDayOfItsPeriod) {
    sfvel_GetPeriod(sfg_Date(-1));
    const QString to = gSParam[2];
    Desk::onSuite("UPDATE SYSAP SET [ToDate] = '" + sfg_Date(-1) + "' WHERE [ToDate] = '" + to +
                  "'");
    EXPECT_TRUE(sfvel_Check_EndOfDay_Run());
    EXPECT_EQ(ofRow("MonthEnd"), "Y");
}

TEST_F(DayEndTest, aMissingDayEndProgramIsSilentAndTheRowStays) {
    velcro::seat::setProgramFinder([](const QString&) { return QString(); });
    EXPECT_TRUE(sfvel_Check_EndOfDay_Run());
    EXPECT_TRUE(started.isEmpty());
    EXPECT_TRUE(desk.shown.isEmpty());
    EXPECT_EQ(ofRow("Status"), "X");
}
