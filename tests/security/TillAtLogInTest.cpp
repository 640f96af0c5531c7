// What the log-in button does with the till's database before it signs anybody in.
#include "data/DataModules.h"
#include "data/DateTimeText.h"
#include "data/Session.h"
#include "security/CMN999.h"
#include "support/Desk.h"
#include "support/EmbeddedDatabase.h"
#include "support/ScriptedUser.h"
#include "ui/Handler.h"

#include <QTimer>

#include <gtest/gtest.h>

using velcro::test::Desk;
using velcro::test::EmbeddedDatabase;

namespace {

class TillAtLogInTest : public testing::Test
{
protected:
    void SetUp() override {
        cData->ConnectDB_Common();
        till = EmbeddedDatabase::open(desk.databases().toStdString(), false, "VELTILL");
        velcro::ui::setErrorDisplay([this](const QString& text) { displayed.append(text); });
    }
    void TearDown() override { velcro::ui::setErrorDisplay({}); }

    std::string onTill(const std::string& batch) {
        return EmbeddedDatabase::answerOf(*till, batch);
    }
    void pressOK(const QString& code = "COUNTER1", const QString& password = "COUNTER") {
        user.typeInto("edUserCode", code);
        user.typeInto("edUserPswd", password);
        user.click("btnOK");
    }

    Desk desk{Desk::Start::Configured};
    ScriptedUser user;
    std::unique_ptr<velcro::sql::SqlConnection> till;
    QStringList displayed;
};

/// How often a window is painted.
class PaintCount : public QObject
{
public:
    int count = 0;
    bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == QEvent::UpdateRequest;
        return false;
    }
};

} // namespace

TEST_F(TillAtLogInTest, aTillThatIsBehindIsSweptWhileTheWindowGoesOnPainting) {
    onTill("DROP TABLE SYSAudit; UPDATE SYSTillControl SET DBVersion = '14.0', LastUpgrade = ''");
    TfrmCMN999 form;
    PaintCount paints;
    form.installEventFilter(&paints);
    QStringList seen;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        if (form.isVisible()) {
            seen.append(user.message());
            form.update();
        }
    });
    user.workIn(form, [&] {
        watch.start(1);
        paints.count = 0;
        pressOK();
    });
    EXPECT_EQ(form.xReturn, "OK");
    EXPECT_TRUE(seen.contains("Local DB Upgrade in Progress.   Please wait....."))
        << seen.join('|').toStdString();
    EXPECT_GT(paints.count, 1);
    EXPECT_NE(onTill("SELECT OBJECT_ID('SYSAudit')"), "NULL");
    EXPECT_EQ(onTill("SELECT DBVersion, LastUpgrade FROM SYSTillControl"),
              "14.47.41|" + sfg_Date(0).toStdString());
    EXPECT_EQ(gDBVersion, "14.47.41") << "of the suite";
}

TEST_F(TillAtLogInTest, aTillThatIsCurrentIsLeftAlone) {
    for (const char* version : {"14.47.41", "9.1.1", "15.0.0"}) {
        onTill(std::string("UPDATE SYSTillControl SET DBVersion = '") + version +
               "', LastUpgrade = '2020/01/01'");
        TfrmCMN999 form;
        user.workIn(form, [&] { pressOK(); });
        EXPECT_EQ(onTill("SELECT DBVersion, LastUpgrade FROM SYSTillControl"),
                  std::string(version) + "|2020/01/01");
    }
}

TEST_F(TillAtLogInTest, aSeatWithoutARowGetsOneAndASweepBeforeThePasswordIsAsked) {
    onTill("DELETE FROM SYSTillControl");
    TfrmCMN999 form;
    user.workIn(form, [&] {
        pressOK("COUNTER1", "WRONG");
        EXPECT_EQ(user.message(), "Password INVALID");
        user.click("btnCancel");
    });
    const std::string today = sfg_Date(0).toStdString();
    EXPECT_EQ(onTill("SELECT PCName, MacID, DBVersion, LastMaint, LastUpgrade FROM SYSTillControl"),
              gPCName.toStdString() + "||14.47.41|" + today + "|" + today);
}

TEST_F(TillAtLogInTest, aTillWithoutItsFirstTableIsToldAndNobodyIsSignedIn) {
    onTill("DROP TABLE SYSTillControl");
    TfrmCMN999 form;
    user.workIn(form, [&] {
        pressOK();
        EXPECT_TRUE(form.isVisible());
        user.click("btnCancel");
    });
    EXPECT_EQ(desk.shown.value(0), "900004|SQL Error on Table: vcVersions :-\rInvalid object name "
                                   "'SYSTillControl'.");
    EXPECT_EQ(displayed.size(), 1);
}

TEST_F(TillAtLogInTest, aSweepThatStopsLeavesItsMessageAndTheNextLogInRepeatsIt) {
    onTill("UPDATE SYSTillControl SET DBVersion = ''");
    onTill("CREATE VIEW Shown AS SELECT StockCode AS Description1 FROM STKPrice");
    TfrmCMN999 form;
    user.workIn(form, [&] {
        pressOK();
        EXPECT_EQ(user.message(), "Local DB Upgrade in Progress.   Please wait.....");
        EXPECT_EQ(onTill("SELECT DBVersion FROM SYSTillControl"), "");
        EXPECT_TRUE(displayed.value(0).contains("tb_Update_STKDesc_ColLength"));
        onTill("DROP VIEW Shown");
        pressOK();
    });
    EXPECT_EQ(form.xReturn, "OK");
    EXPECT_EQ(onTill("SELECT DBVersion FROM SYSTillControl"), "14.47.41");
}
