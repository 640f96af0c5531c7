// What goes wrong at the counter while an order is booked in: odd input, customers and orders that
// others delete meanwhile, numbers that cannot be had, a server that goes away.
#include "data/DataModules.h"
#include "data/Session.h"
#include "repairs/BookingDesk.h"
#include "repairs/CRO100.h"
#include "support/DroppingServer.h"

#include <QLineEdit>

using velcro::test::Desk;

namespace {

const QString customers = QStringLiteral("Debtors: Customer Selection");

class BookingFaultsTest : public BookingDesk
{
protected:
    static QString ordersOf(const QString& name) {
        return Desk::suite("SELECT COUNT(*) FROM CRORepMst WHERE [Name] = '" + name + "'");
    }
    static int rowsBelow(const QString& order) {
        int rows = 0;
        for (const char* table : {"CRORepMst", "CRORepItems", "CRORepItmProcess"}) {
            rows += rowsOf(table, order).toInt();
        }
        return rows;
    }
    QString saved(const QString& control, const QString& field, const QString& pasted) {
        QString seen;
        show(1, {}, [&] {
            fill("Paste");
            user.pasteInto(control, pasted);
            seen = user.sees(control);
            user.press(Qt::Key_F10);
        });
        const QString newest =
            Desk::suite("SELECT TOP(1) [" + field + "] FROM CRORepMst ORDER BY [RecID] DESC");
        EXPECT_EQ(newest, seen) << "stored as it was shown";
        return newest;
    }

    velcro::test::DroppingServer server; // stands before the desk connects again
};

} // namespace

TEST_F(BookingFaultsTest, whatIsPastedIsStoredAsItStandsWithinTheLimit) {
    const QString kept[] = {
        "O'Brien's \"best\" `x` \\ /* -- */ ; GO",
        "100% _ [a-z] [^x] {} $ :NAME ? @x",
        QString::fromUtf8("مرحبا שלום 日本語 한국어 ไทย"),
        QString::fromUtf8("👩‍🔧 é ﬀ ß İ"),
        QString("tab\tline\nreturn\rbell\a."),
    };
    for (const QString& text : kept) {
        EXPECT_EQ(saved("edContact", "Contact", text), text) << text.toStdString();
    }
    const QString wide = QString::fromUtf8("😀"); // two units of UTF-16
    EXPECT_EQ(saved("edAddress4", "Address4", QString(5000, 'x')), QString(100, 'x'));
    EXPECT_EQ(saved("edAddress4", "Address4", QString(99, 'x') + wide), QString(99, 'x'))
        << "a letter is kept whole or not at all";
    EXPECT_EQ(saved("edAddress4", "Address4", QString(98, 'x') + wide), QString(98, 'x') + wide);
    EXPECT_TRUE(desk.shown.isEmpty()) << desk.shown.join('\n').toStdString();
    EXPECT_TRUE(raised.isEmpty()) << raised.join('\n').toStdString();
}

TEST_F(BookingFaultsTest, anAccountIsBrowsedByQuestionMarkByButtonAndWhenUnknown) {
    const auto takeFirst = [this] { user.press(Qt::Key_Return); };
    const auto takeNone = [this] { user.press(Qt::Key_Escape); };
    const QString first = Desk::suite("SELECT TOP(1) [Account] FROM DEBMaster WHERE [CO] = '01' "
                                      "AND [Branch] = '100' ORDER BY [Name]");
    const QString name = Desk::suite("SELECT [Name] FROM DEBMaster WHERE [CO] = '01' AND "
                                     "[Branch] = '100' AND [Account] = '" +
                                     first + "'");
    for (const auto& answer : {takeFirst, takeFirst}) {
        user.expectForm(customers, answer);
    }
    for (int i = 0; i < 3; ++i) {
        user.expectForm(customers, takeNone);
    }
    show(1, {}, [&] {
        user.typeInto("edAccount", "?");
        user.press(Qt::Key_Return);
        EXPECT_EQ(user.sees("edAccount"), first);
        EXPECT_EQ(user.sees("edName"), name);
        EXPECT_EQ(user.focus(), "edName");

        user.typeInto("edAccount", "no such account");
        user.press(Qt::Key_Return);
        EXPECT_EQ(user.sees("edAccount"), first);
        EXPECT_EQ(user.message(), "");

        user.typeInto("edAccount", "o'nobody");
        user.press(Qt::Key_Return);
        EXPECT_EQ(user.message(), "Account Number Entered was NOT FOUND");
        EXPECT_EQ(user.focus(), "edAccount");
        EXPECT_EQ(user.sees("edName"), name) << "the name stays";

        user.typeInto("edAccount", " ? ");
        user.press(Qt::Key_Return);
        EXPECT_EQ(user.message(), "") << "closed without a choice: blank, and nothing is said";
        EXPECT_EQ(user.focus(), "edAccount");

        user.typeInto("edAccount", "C00002");
        user.click("btnAccount");
        EXPECT_EQ(user.sees("edAccount"), "") << "what was there is gone";
        EXPECT_EQ(user.focus(), "edAccount");
        leave();
    });
    EXPECT_TRUE(desk.shown.isEmpty()) << desk.shown.join('\n').toStdString();
}

TEST_F(BookingFaultsTest, aCustomerDeletedBetweenLookUpAndSaveIsBookedAllTheSame) {
    show(1, {}, [&] {
        user.typeInto("edAccount", "C00002");
        user.press(Qt::Key_Return);
        Desk::onSuite("DELETE FROM DEBMaster WHERE [Account] = 'C00002'");
        user.typeInto("edCellphone", "0825550199");
        user.press(Qt::Key_F10);
    });
    EXPECT_EQ(column("100501", "Account"), "C00002");
    EXPECT_TRUE(desk.shown.isEmpty()) << desk.shown.join('\n').toStdString();
}

TEST_F(BookingFaultsTest, withoutANumberNothingIsWrittenAndNothingTypedIsLost) {
    const QString parameters = "@CO nvarchar(10), @BRANCH nvarchar(10), @MODCODE nvarchar(3), "
                               "@TXTP nvarchar(6)";
    Desk::onSuite("CREATE PROCEDURE VELMARA_GENERATE_NUMBER " + parameters +
                  " AS SELECT 7 AS [NUMBER] WHERE 1 = 0");
    show(1, {}, [&] {
        fill("Numberless");
        user.press(Qt::Key_F10);
        EXPECT_EQ(desk.shown,
                  QStringList("100A-002|Error generating customer repair order number"));
        EXPECT_EQ(user.sees("edCRONo"), "0");
        Desk::onSuite("DROP PROCEDURE VELMARA_GENERATE_NUMBER");
        Desk::onSuite("CREATE PROCEDURE VELMARA_GENERATE_NUMBER " + parameters +
                      " AS SELECT 0 AS [NUMBER]");
        user.press(Qt::Key_F10);
        ASSERT_EQ(raised.size(), 1);
        EXPECT_TRUE(raised[0].contains("Failed to generate document number for \"CRO\"/\"CROMST\""))
            << raised[0].toStdString();
        EXPECT_EQ(ordersOf("Numberless"), "0");
        Desk::onSuite("DROP PROCEDURE VELMARA_GENERATE_NUMBER");
        EXPECT_EQ(user.sees("edName"), "Numberless");
        user.press(Qt::Key_F10);
    });
    EXPECT_EQ(ordersOf("Numberless"), "1");
}

TEST_F(BookingFaultsTest, anOrderThatCannotBeReadIsToldAndTheScreenKeepsItsDefaults) {
    const int row = recID("100299");
    Desk::onSuite("DROP TABLE CRORepMst");
    TfrmCRO100A screen;
    screen.xFunction = 2;
    screen.xRecID = row;
    user.workIn(screen, [&] {
        EXPECT_TRUE(screen.isVisible());
        EXPECT_EQ(user.sees("cmbReceiveMthd"), "WALKIN - WALKIN");
        fill("Over a row that was not read");
        user.press(Qt::Key_F10);
        EXPECT_TRUE(screen.isVisible()) << "nothing is saved";
        user.press(Qt::Key_Escape);
    });
    ASSERT_EQ(desk.shown.size(), 1);
    EXPECT_TRUE(desk.shown[0].startsWith(
        "100A-001|SQL Error reading object \"CRORepMst\". Details: \rInvalid object name"))
        << desk.shown[0].toStdString();
    EXPECT_TRUE(raised.isEmpty());
}

TEST_F(BookingFaultsTest, aScreenWhoseClockReadFailsShowsItsModeAndSavesNothing) {
    const int whole = rowsBelow("100300");
    for (const auto& [mode, caption] : {std::pair(3, "DELETE"), std::pair(1, "Save Order")}) {
        cData->CloseDB_Common();
        show(mode, "100300", [&, mode = mode, caption = caption] {
            EXPECT_EQ(user.sees("btnSave"), caption);
            EXPECT_EQ(user.find<QWidget>("pnlMain").isEnabled(), mode != 3);
            EXPECT_TRUE(user.message().startsWith("Could not be read: nothing can be saved."));
            if (mode != 3) {
                cData->ConnectDB_Common();
                fill("Without a date");
            }
            user.press(Qt::Key_F10);
            EXPECT_TRUE(user.form().isVisible());
            user.press(Qt::Key_Escape);
        });
    }
    EXPECT_EQ(rowsBelow("100300"), whole);
    EXPECT_EQ(ordersOf("Without a date"), "0");
    EXPECT_EQ(raised.size(), 2) << raised.join('\n').toStdString();
}

TEST_F(BookingFaultsTest, aBadNumberInTheTableBlocksTheDeleteUntilItIsMended) {
    Desk::onSuite("UPDATE CRORepMst SET [Cellphone] = '12345' WHERE [CRONo] = '100300'");
    show(3, "100300", [&] {
        user.press(Qt::Key_F10);
        EXPECT_EQ(user.message(), "Invalid cellphone number format.");
        user.press(Qt::Key_F10);
        user.press(Qt::Key_Escape);
    });
    EXPECT_EQ(rowsOf("CRORepMst", "100300"), "1");
    show(2, "100300", [&] {
        user.typeInto("edCellphone", "0825550111");
        user.press(Qt::Key_F10);
    });
    show(3, "100300", [&] { user.press(Qt::Key_F10); });
    EXPECT_EQ(rowsBelow("100300"), 0);
}

// Calls of F10 in add mode: number, duplicate check, begin, insert, commit.
TEST_F(BookingFaultsTest, aServerLostAtF10LeavesAWholeOrderOrNoneAndTheUserCanGoOn) {
    Desk::onSuite("UPDATE CRORepMst SET [Cellphone] = '0825550111' WHERE [CRONo] = '100300'");
    gData->ConnectDB_VEL(gDBConnector, gCmnHost, "VELSUITE", {}, {}, "N");
    int lost = 0;
    for (int call = 1; call <= 6; ++call) {
        const QString name = "Lost " + QString::number(call);
        const int told = int(desk.shown.size() + raised.size());
        bool stayed = false;
        show(1, {}, [&] {
            fill(name);
            server.dropAt(call);
            user.press(Qt::Key_F10);
            lost += server.dropped() ? 1 : 0;
            stayed = user.form().isVisible();
            if (stayed) {
                EXPECT_EQ(ordersOf(name), "0") << call;
                EXPECT_EQ(user.sees("edName"), name);
                user.press(Qt::Key_F10);
            }
        });
        const bool dropped = server.dropped();
        server.forget();
        EXPECT_EQ(ordersOf(name), stayed || !dropped ? "1" : "0") << call;
        EXPECT_EQ(int(desk.shown.size() + raised.size()) - told, dropped ? 1 : 0)
            << call << ": each loss is told once";
    }
    EXPECT_EQ(lost, 5);
}

TEST_F(BookingFaultsTest, aServerLostInADeleteTakesEverythingOrNothing) {
    Desk::onSuite("UPDATE CRORepMst SET [Cellphone] = '0825550111' WHERE [CRONo] = '100300'");
    gData->ConnectDB_VEL(gDBConnector, gCmnHost, "VELSUITE", {}, {}, "N");
    const int whole = rowsBelow("100300");
    EXPECT_GT(whole, 2);
    const auto loseAt = [&](int call, const ScriptedUser::Step& after) {
        show(3, "100300", [&] {
            server.dropAt(call);
            user.press(Qt::Key_F10);
            after();
        });
        EXPECT_TRUE(server.dropped()) << call;
        server.forget();
        EXPECT_EQ(rowsBelow("100300"), whole) << call;
        EXPECT_EQ(desk.shown.size() + raised.size(), call);
    };
    // Without a transaction nothing was tried, and the screen stays.
    loseAt(1, [&] { user.press(Qt::Key_Escape); });
    for (int call : {2, 3}) {
        loseAt(call, [&] { EXPECT_FALSE(user.form().isVisible()); });
    }
    show(3, "100300", [&] { user.press(Qt::Key_F10); });
    EXPECT_EQ(rowsBelow("100300"), 0);
}
