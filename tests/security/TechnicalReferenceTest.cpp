#include "data/DataModules.h"
#include "data/Session.h"
#include "security/VEL710.h"
#include "support/Desk.h"
#include "support/ScreenChecks.h"
#include "support/ScriptedUser.h"

#include <QLineEdit>
#include <QTabWidget>

#include <gtest/gtest.h>

using velcro::test::Desk;

namespace {

const QString caption = QStringLiteral("System Parameters and Access Codes");

class TechnicalReferenceTest : public testing::Test
{
protected:
    Desk desk{Desk::Start::SignedIn};
    ScriptedUser user;
};

} // namespace

TEST_F(TechnicalReferenceTest, showsWhatGovernsAScreenAndHowItStands) {
    user.expectForm(caption, [&] {
        auto& pages = user.find<QTabWidget>("pgReference");
        EXPECT_TRUE(namelessControls(user.form()).isEmpty());
        EXPECT_TRUE(clippedControls(user.form()).isEmpty());
        EXPECT_EQ(user.sees("edFormCode"), "CRO100");
        EXPECT_EQ(pages.tabText(pages.currentIndex()), "Access Codes");
        EXPECT_EQ(user.column("Your Setting"),
                  QStringList({"Yes", "Supervisor Required", "", "No", ""}))
            << "rights 0, 2, 6, 10 and 11 of this user";
        keepPicture(user.form(), "technical-reference");
        pages.setCurrentIndex(1);
        EXPECT_EQ(user.column("Module"), QStringList({"BRANCH", "BRANCH", "COMPANY", "TIL"}));
        EXPECT_EQ(user.column("Current Setting"), QStringList({"", "1", "1", "N"}))
            << "a row of module BR is looked up under that name and finds nothing";
        user.click("btnSearch");
        user.type("keyboard");
        EXPECT_EQ(user.column("Param No."), QStringList("62"));
        user.press(Qt::Key_Escape);
        EXPECT_EQ(user.column("Param No.").size(), 4) << "Escape closes the footer first";
        EXPECT_TRUE(user.form().isVisible());
        user.click("btnSearch");
        pages.setCurrentIndex(0);
        user.press(Qt::Key_Escape);
        EXPECT_TRUE(user.form().isVisible()) << "also the footer of a page behind";
        pages.setCurrentIndex(1);
        EXPECT_FALSE(user.find<QLineEdit>("grdParamsSearch").isVisible());
        user.press(Qt::Key_Escape);
    });
    sfvel_TechHelp("CRO100");
}

TEST_F(TechnicalReferenceTest, opensOnTheFirstPageThatHasRowsOrSaysThatThereIsNone) {
    user.expectForm(caption, [&] {
        EXPECT_EQ(user.find<QTabWidget>("pgReference").currentIndex(), 1);
        user.click("btnClose");
    });
    sfvel_TechHelp("CRO920");
    user.expectForm(caption, [&] {
        EXPECT_EQ(user.sees("edDescription"),
                  "** There are NO Technical Reference Notes for this Form **");
        EXPECT_FALSE(user.find<QTabWidget>("pgReference").isVisible());
        EXPECT_TRUE(clippedControls(user.form()).isEmpty());
        user.press(Qt::Key_Escape);
    });
    sfvel_TechHelp("CRO999");
}
