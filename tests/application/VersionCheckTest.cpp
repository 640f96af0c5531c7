#include "application/VersionCheck.h"

#include "data/DataModules.h"
#include "data/DateTimeText.h"
#include "data/Errors.h"
#include "data/Session.h"
#include "screens/ImageLists.h"
#include "support/Desk.h"
#include "support/ScreenChecks.h"
#include "support/ScriptedUser.h"
#include "ui/Handler.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

using velcro::test::Desk;

namespace {

const QString notice = QStringLiteral("VELMARA : Program Version Mismatch");

class VersionCheckTest : public testing::Test
{
protected:
    void SetUp() override {
        fillImageLists(*sData);
        velcro::ui::setErrorDisplay([this](const QString& text) { errors << text; });
        gEXEName = QStringLiteral("velCRO.exe");
    }
    ~VersionCheckTest() override {
        velcro::ui::setErrorDisplay({});
        gEXETitle.clear();
    }
    static QString registered(const QString& column = QStringLiteral("Version")) {
        return Desk::common("SELECT [" + column +
                            "] FROM vcVersions WHERE [Suite] = 'VELMARA' AND [PgmName] = 'velCRO'");
    }
    static void setRegistered(const QString& version) {
        Desk::onCommon("UPDATE vcVersions SET [Version] = '" + version +
                       "' WHERE [PgmName] = 'velCRO'");
    }
    void expectNotice(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        user.expectForm(notice, [this, key, modifiers] { user.press(key, modifiers); });
    }

    Desk desk;
    ScriptedUser user;
    QStringList errors;
};

} // namespace

TEST_F(VersionCheckTest, closingTheNoticeRaisesALowerRegistrationAndEndsALowerFile) {
    const struct
    {
        const char *file, *registered;
        bool asks, starts;
    } cases[] = {
        {"14.47.41", "14.47.41", false, true}, {"1.2.3a", "1.2.3A", false, true},
        {"14.47.42", "14.47.41", true, true},  {"14.47.40", "14.47.41", true, false},
        {"1.2.3", "1.2.30", true, false},      {"2.0", "1.9.9", true, false},
        {"1.10.0", "1.9.9", true, true},       {"14.47.41", "0.0.0", true, true},
    };
    for (const auto& [file, before, asks, starts] : cases) {
        setRegistered(before);
        gVersion = file;
        if (asks) {
            expectNotice(starts ? Qt::Key_Return : Qt::Key_Escape);
        }
        EXPECT_EQ(sfg_CheckEXEVersion(), starts) << file << " against " << before;
        EXPECT_EQ(registered(), asks && starts ? file : before);
    }
    EXPECT_EQ(registered("LastPCName"), gPCName);
    EXPECT_EQ(registered("LastUpd"), sfg_Date(0));
}

TEST_F(VersionCheckTest, theNoticeNamesBothAndCtrlF12GoesOnWithAny) {
    setRegistered("14.48.00");
    gVersion = QStringLiteral("14.47.41");
    user.expectForm(notice, [&] {
        EXPECT_EQ(user.sees("lblEXEName"), "velCRO.exe");
        EXPECT_EQ(user.sees("lblEXEVersion"), "14.47.41");
        EXPECT_EQ(user.sees("lblSystemVersion"), "14.48.00");
        EXPECT_EQ(user.focus(), "btnClose");
        EXPECT_TRUE(clippedControls(user.form()).isEmpty());
        user.press(Qt::Key_U, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_TRUE(user.form().isVisible());
        user.press(Qt::Key_F12, Qt::ControlModifier);
    });
    EXPECT_TRUE(sfg_CheckEXEVersion());
    EXPECT_EQ(registered(), "14.48.00");
}

TEST_F(VersionCheckTest, theButtonOfTheNoticeClosesItAsItsKeysDo) {
    const std::pair<const char*, bool> versions[] = {{"14.47.40", true}, {"14.48.00", false}};
    gVersion = QStringLiteral("14.47.41");
    for (const auto& [before, starts] : versions) {
        setRegistered(before);
        user.expectForm(notice, [&] {
            user.click("btnClose");
            EXPECT_FALSE(user.form().isVisible());
        });
        EXPECT_EQ(sfg_CheckEXEVersion(), starts) << before;
    }
}

TEST_F(VersionCheckTest, aVersionWithLettersLeavesTheChoiceToTheUser) {
    setRegistered("14.47.beta");
    gVersion = QStringLiteral("14.47.41");
    user.expectForm(notice, [&] {
        user.press(Qt::Key_Return);
        EXPECT_EQ(errors.size(), 1) << "the conversion error is shown";
        EXPECT_TRUE(user.form().isVisible());
        user.press(Qt::Key_F12, Qt::ControlModifier);
    });
    EXPECT_TRUE(sfg_CheckEXEVersion());
    EXPECT_EQ(registered(), "14.47.beta");
}

TEST_F(VersionCheckTest, anUnknownProgramRegistersItself) {
    for (const char* name : {"velCRO.new.exe", "velCRO"}) {
        Desk::onCommon("DELETE FROM vcVersions WHERE [PgmName] = 'velCRO'");
        gEXEName = QLatin1String(name);
        gEXETitle = QStringLiteral("Repairs");
        gVersion = QStringLiteral("1.2.3");
        EXPECT_TRUE(sfg_CheckEXEVersion());
        EXPECT_EQ(registered() + registered("Description"), "1.2.3Repairs") << name;
        const QRegularExpression time(QStringLiteral("^\\d\\d:\\d\\d:\\d\\d$"));
        EXPECT_TRUE(time.match(registered("LastPCName")).hasMatch());
    }
}

TEST_F(VersionCheckTest, theTitleIsTakenOnlyWhereThereIsNone) {
    gVersion = registered();
    for (const char* before : {"", "  ", "Mine"}) {
        gEXETitle = QLatin1String(before);
        EXPECT_TRUE(sfg_CheckEXEVersion());
        EXPECT_EQ(gEXETitle, *before == 'M' ? "Mine" : registered("Description"));
    }
}

TEST_F(VersionCheckTest, failuresOfTheTable) {
    gVersion = QStringLiteral("99.0.0");
    user.expectForm(notice, [&] {
        Desk::onCommon("DROP TABLE vcVersions");
        user.press(Qt::Key_Return);
    });
    EXPECT_FALSE(sfg_CheckEXEVersion()) << "the update failed";
    EXPECT_TRUE(desk.shown.isEmpty()) << "silently, but for the failure file";
    EXPECT_THROW(sfg_CheckEXEVersion(), std::exception);
    ASSERT_EQ(desk.shown.size(), 1);
    EXPECT_TRUE(desk.shown[0].startsWith("900004|SQL Error on Table: vcVersions :-\r"));
}
