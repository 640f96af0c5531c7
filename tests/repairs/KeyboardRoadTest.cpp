// Keys that come faster than the eye, and what stands under the windows they open.
#include "repairs/BookingDesk.h"
#include "repairs/CRO100.h"
#include "support/TypedAhead.h"

using velcro::test::Desk;
using velcro::test::queueKey;
using velcro::test::queueText;
using velcro::test::takeQueue;

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
        EXPECT_EQ(user.message(),
                  "Order " +
                      Desk::suite("SELECT TOP(1) [CRONo] FROM CRORepMst ORDER BY [RecID] DESC") +
                      " is booked in.");
        user.press(Qt::Key_R, Qt::ControlModifier);
        EXPECT_EQ(user.message(), "") << "it was read";
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

TEST_F(KeyboardRoadTest, deletePressedThreeTimesOpensOneDeleteScreen) {
    int opened = 0;
    inRegister([&] {
        user.expectForm(headerTitle, [&] {
            takeQueue();
            ++opened;
            user.press(Qt::Key_Escape);
        });
        for (int i = 0; i < 3; ++i) {
            queueKey(Qt::Key_Delete);
        }
        takeQueue();
    });
    EXPECT_EQ(opened, 1);
}

TEST_F(KeyboardRoadTest, escapeTypedAheadClosesTheScreenThatComesUpNotTheOneBelow) {
    inRegister([&] {
        for (const auto opens : {Qt::Key_Delete, Qt::Key_Insert}) {
            queueKey(opens);
            queueKey(Qt::Key_Escape);
            takeQueue();
            EXPECT_TRUE(user.form().isVisible());
            EXPECT_EQ(QApplication::activeModalWidget(), &user.form());
        }
    });
}

TEST_F(KeyboardRoadTest, datesAndCodesTypedWithoutAPauseLoseNoLetter) {
    const QStringList edits = {"edTranDate", "edReceiveDate", "edAccount", "edName", "edAddress1"};
    // What is in the edits after an order was begun with these keys, ahead or one after the other.
    const auto booked = [&](const QString& ahead, const QString& one) {
        QStringList seen;
        inRegister([&] {
            user.expectForm(headerTitle, [&] {
                takeQueue();
                for (const QChar letter : one) {
                    queueText(letter);
                    takeQueue();
                }
                for (const auto& edit : edits) {
                    seen << user.sees(edit);
                }
                leave();
            });
            queueKey(Qt::Key_Insert);
            queueText(ahead);
            takeQueue();
        });
        return seen;
    };
    const QString keys = "2026/01/09\r\r\r\rC00001\rAB-77\rAB-78\r";
    const auto seen = booked(keys, {});
    EXPECT_EQ(seen, booked({}, keys));
    ASSERT_EQ(seen.size(), edits.size());
    EXPECT_EQ(seen[2], "C00001");
    EXPECT_TRUE(seen[3].contains("AB-77") && seen[4].contains("AB-78"))
        << seen.join('|').toStdString();
}
