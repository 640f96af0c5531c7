// Keys that come faster than the eye, and what stands under the windows they open.
#include "repairs/BookingDesk.h"
#include "repairs/CRO100.h"

using velcro::test::Desk;

namespace {

class KeyboardRoadTest : public BookingDesk
{
protected:
    void inRegister(const ScriptedUser::Step& steps) {
        TfrmCRO100 screen;
        screen.resize(1024, 768);
        user.workIn(screen, [&] {
            steps();
            user.press(Qt::Key_Escape);
        });
    }
    static QString orders() { return Desk::suite("SELECT COUNT(*) FROM CRORepMst"); }
};

} // namespace

TEST_F(KeyboardRoadTest, whatIsTypedRightAfterTheSearchKeyIsSearchedFor) {
    inRegister([&] {
        user.press(Qt::Key_S, Qt::AltModifier);
        user.type("100299");
        user.press(Qt::Key_Return);
        EXPECT_EQ(user.column("Order #No"), QStringList("100299"));
    });
}

TEST_F(KeyboardRoadTest, enterLeadsThroughTheBookingAndSavesItButDeletesNothing) {
    const int before = orders().toInt();
    inRegister([&] {
        user.expectForm(headerTitle, [&] {
            for (int i = 0; i < 4; ++i) {
                user.press(Qt::Key_Return);
            }
            EXPECT_EQ(user.focus(), "edAccount");
            user.type("C00001");
            user.press(Qt::Key_Return);
            for (int i = 0; user.focus() != "btnSave" && i < 20; ++i) {
                if (user.focus() == "edCellphone") {
                    user.type("0825550199");
                }
                user.press(Qt::Key_Return);
            }
            EXPECT_EQ(user.focus(), "btnSave");
            user.press(Qt::Key_Return);
        });
        user.press(Qt::Key_Insert);
        EXPECT_EQ(orders().toInt(), before + 1);
        user.expectForm(headerTitle, [&] {
            EXPECT_EQ(user.focus(), "btnSave");
            user.press(Qt::Key_Return);
            EXPECT_TRUE(user.form().isVisible());
            user.press(Qt::Key_Escape);
        });
        user.press(Qt::Key_Delete);
    });
    EXPECT_EQ(orders().toInt(), before + 1);
}

// Every window of the system is painted and moved by itself, which is slow and flickers.
TEST_F(KeyboardRoadTest, aScreenIsOneWindowOfTheSystemAlsoBelowAnother) {
    inRegister([&] {
        user.expectForm(headerTitle, [&] { user.press(Qt::Key_Escape); });
        user.press(Qt::Key_Insert);
        for (const auto* control : user.form().findChildren<QWidget*>()) {
            EXPECT_TRUE(control->isWindow() || control->internalWinId() == 0)
                << control->objectName().toStdString();
        }
    });
}
