// The register and the header of a repair order, driven by a user over the sample databases.
#include "data/DataModules.h"
#include "data/DateTimeText.h"
#include "data/Session.h"
#include "lookups/CRO900.h"
#include "lookups/CRO910.h"
#include "repairs/BookingDesk.h"
#include "repairs/CRO100.h"
#include "support/DetailColumns.h"
#include "support/ScreenChecks.h"

using velcro::test::Desk;

namespace {

class BookingInTest : public BookingDesk
{
};

} // namespace

TEST_F(BookingInTest, aNewOrderIsWrittenWithEveryColumn) {
    show(1, {}, [&] {
        EXPECT_EQ(namelessControls(user.form()).join("\n").toStdString(), "");
        EXPECT_EQ(clippedControls(user.form()).join("\n").toStdString(), "");
        EXPECT_EQ(user.sees("edTranDate"), sfg_Date(0));
        const char* const entries[][2] = {
            {"edAccount", "C00002"},
            {"edName", "O'Brien & \"Söhne\""},
            {"edAddress1", "14 Quarrel St"},
            {"edAddress2", "%_[x]"},
            {"edAddress3", "المدينة"},
            {"edAddress4", "東京 😀"},
            {"edPostCode", "7001"},
            {"edContact", "Ann; DROP TABLE CRORepMst --"},
            {"edCellphone", "0825550199"},
            {"edTelephone1", "(021)555-1234"},
            {"edTelephone2", ""},
            {"edEMail", "ann@brindavel.example"},
            {"edReference", "R-1"},
        };
        for (const auto& [control, text] : entries) {
            user.typeInto(control, QString::fromUtf8(text));
        }
        keepPicture(user.form(), "header-filled");
        user.press(Qt::Key_F10);
    });
    ASSERT_TRUE(desk.shown.isEmpty()) << desk.shown.join('\n').toStdString();
    const char* const expected[][2] = {
        {"Branch", "100"},
        {"Account", "C00002"},
        {"Name", "O'Brien & \"Söhne\""},
        {"Address2", "%_[x]"},
        {"Address3", "المدينة"},
        {"Address4", "東京 😀"},
        {"PostCode", "7001"},
        {"Contact", "Ann; DROP TABLE CRORepMst --"},
        {"Cellphone", "0825550199"},
        {"Telephone1", "(021)555-1234"},
        {"Telephone2", ""},
        {"EMail", "ann@brindavel.example"},
        {"Reference", "R-1"},
        {"ReceiveMthd", "WALKIN"},
        {"ReceiveItems", "0"},
        {"Status", "0"},
        {"DTOUser", "COUNTER1"},
    };
    for (const auto& [name, value] : expected) {
        EXPECT_EQ(column("100501", name).toStdString(), value) << name;
    }
    for (const char* date : {"TranDate", "ReceiveDate", "DTODate"}) {
        EXPECT_EQ(column("100501", date), sfg_Date(0)) << date;
    }
    EXPECT_EQ(column("100501", "DTOMacID"), gPCName);
}

TEST_F(BookingInTest, everyFieldComesIntoItsColumnAndBack) {
    expectEveryColumnIsKept(
        user,
        {.screen = [] { return std::make_unique<TfrmCRO100A>(); },
         .typed = {{"edTranDate", {"2026/01/31", "2026/02/01"}},
                   {"edReceiveDate", {"2026/03/05", "2026/03/06"}},
                   {"edCellphone", {"0825550101", "0825550102"}},
                   {"edTelephone1", {"0215550103", "0215550104"}},
                   {"edTelephone2", {"0315550105", "0315550106"}},
                   {"edEMail", {"a@one.example", "b@two.example"}}},
         .others = {{"Branch", "100"}, {"CRONo", "100501"}, {"ReceiveItems", "0"}, {"Status", "0"}},
         .keeps = {"Account"}});
    EXPECT_TRUE(desk.shown.isEmpty()) << desk.shown.join('\n').toStdString();
}

TEST_F(BookingInTest, refusalsComeInOrderKeepWhatWasTypedAndTakeNoNumber) {
    show(1, {}, [&] {
        const struct
        {
            const char *control, *text, *message, *focus;
        } steps[] = {
            {"edReference", "R1", "Account field cannot be empty.", "edAccount"},
            {"edAccount", " ", "Name field cannot be empty.", "edName"},
            {"edName", "O'Brien", "Cellphone field cannot be empty.", "edCellphone"},
            {"edCellphone", "0105551234", "Invalid cellphone number format.", "edCellphone"},
            {"edTranDate", "", "Transaction Date field cannot be empty.", "edTranDate"},
            {"edTranDate", "soon", "Order Date is not a date. Type it as yyyy/mm/dd.",
             "edTranDate"},
            {"edTranDate", "2026/1/31", "Invalid cellphone number format.", "edCellphone"},
            {"edCellphone", "082-555-1234", nullptr, nullptr},
            {"edTelephone1", "0", "Invalid telephone number format for Telephone1.",
             "edTelephone1"},
            {"edTelephone1", "(021)555-1234", nullptr, nullptr},
            {"edTelephone2", "x", "Invalid telephone number format for Telephone2.",
             "edTelephone2"},
            {"edTelephone2", "", nullptr, nullptr},
            {"edEMail", "a@b", "Invalid email address format.", "edEMail"},
        };
        for (const auto& [control, text, message, focus] : steps) {
            user.typeInto(control, text);
            if (message) {
                user.press(Qt::Key_F10);
                EXPECT_EQ(user.message(), message);
                EXPECT_EQ(user.focus(), focus);
            }
        }
        EXPECT_EQ(user.sees("edName"), "O'Brien");
        EXPECT_EQ(user.sees("edReference"), "R1");
        leave();
    });
    show(1, {}, [&] {
        fill("Next");
        user.press(Qt::Key_F10);
    });
    EXPECT_EQ(column("100501", "Name"), "Next") << "the first number was not used up";
}

TEST_F(BookingInTest, aNumberIsUsedUpByASaveThatFails) {
    Desk::onSuite("INSERT INTO CRORepMst ([CO], [Branch], [CRONo]) VALUES ('01', '100', '100501')");
    show(1, {}, [&] {
        fill("Twice");
        user.press(Qt::Key_F10);
        EXPECT_EQ(user.message(), "Repair order already exists. Please contact support.");
        EXPECT_EQ(user.sees("edCRONo"), "100501");
        user.press(Qt::Key_F10);
    });
    EXPECT_EQ(column("100502", "Name"), "Twice");
}

TEST_F(BookingInTest, theScreenClosesAfterASaveThatTheServerRefused) {
    Desk::onSuite("ALTER TABLE CRORepMst DROP COLUMN [Reference]");
    show(1, {}, [&] {
        fill("Lost");
        user.press(Qt::Key_F10);
    });
    ASSERT_EQ(desk.shown.size(), 1);
    EXPECT_TRUE(desk.shown[0].startsWith("box|SQL Error\rInvalid column name 'Reference'"))
        << desk.shown[0].toStdString();
    EXPECT_EQ(rowsOf("CRORepMst", "100501"), "0");
}

TEST_F(BookingInTest, aChangeLeavesAccountNumberItemsAndStatus) {
    const QString account = column("100299", "Account");
    const QString items = column("100299", "ReceiveItems");
    show(2, "100299", [&] {
        EXPECT_EQ(user.sees("edCRONo"), "100299");
        EXPECT_EQ(user.sees("edAccount"), account);
        user.typeInto("edAccount", "C00009");
        user.typeInto("edName", "Renamed");
        user.typeInto("edCellphone", "0825550111");
        user.typeInto("edTranDate", "2026/01/31");
        user.press(Qt::Key_F10);
    });
    EXPECT_EQ(column("100299", "Name"), "Renamed");
    EXPECT_EQ(column("100299", "TranDate"), "2026/01/31");
    EXPECT_EQ(column("100299", "Account"), account);
    EXPECT_EQ(column("100299", "ReceiveItems"), items);
    EXPECT_EQ(column("100299", "Status"), "0");
    EXPECT_EQ(column("100299", "DTOUser"), "COUNTER1");
}

TEST_F(BookingInTest, aDateThatNobodyTouchedIsSavedAsItWasLoaded) {
    Desk::onSuite("UPDATE CRORepMst SET [TranDate] = '31 JAN 26', [ReceiveDate] = '?',"
                  " [Cellphone] = '0825550111' WHERE [CRONo] = '100299'");
    show(2, "100299", [&] {
        EXPECT_EQ(user.focus(), "edTranDate");
        user.tabTo("edName");
        user.typeInto("edName", "Renamed");
        user.press(Qt::Key_F10);
    });
    EXPECT_EQ(column("100299", "Name"), "Renamed");
    EXPECT_EQ(column("100299", "TranDate"), "31 JAN 26");
    EXPECT_EQ(column("100299", "ReceiveDate"), "?");
    show(3, "100299", [&] { user.press(Qt::Key_F10); });
    EXPECT_EQ(rowsOf("CRORepMst", "100299"), "0") << "and stands in no delete's way";
}

TEST_F(BookingInTest, aDeleteTakesEverythingBelowTheOrder) {
    const char* const tables[] = {"CRORepMst",       "CRORepItems",       "CRORepItmFaults",
                                  "CRORepItmImages", "CRORepItmIntake",   "CRORepItmProcess",
                                  "CRORepItmAudit",  "CRORepItmQuoteDet", "CRORepItmQuoteHdr"};
    int before = 0;
    for (const char* table : tables) {
        before += rowsOf(table, "100300").toInt();
    }
    EXPECT_GT(before, 4) << "the sample order has rows below it";
    show(3, "100300", [&] {
        EXPECT_EQ(user.message(), "Press [F10] to Delete");
        EXPECT_EQ(user.sees("btnSave"), "DELETE");
        EXPECT_FALSE(user.find<QWidget>("edName").isEnabled());
        keepPicture(user.form(), "header-delete");
        user.press(Qt::Key_F10);
    });
    for (const char* table : tables) {
        EXPECT_EQ(rowsOf(table, "100300"), "0") << table;
        if (QString(table) != "CRORepItmAudit") {
            EXPECT_NE(Desk::suite(QString("SELECT COUNT(*) FROM ") + table), "0")
                << table << ": other orders stay";
        }
    }
}

TEST_F(BookingInTest, anOrderThatIsGoneMeanwhileChangesNothing) {
    show(2, "100298", [&] {
        Desk::onSuite("DELETE FROM CRORepMst WHERE CRONo = '100298'");
        user.typeInto("edCellphone", "0825550111");
        user.press(Qt::Key_F10);
    });
    EXPECT_TRUE(desk.shown.isEmpty()) << desk.shown.join('\n').toStdString();
    EXPECT_EQ(rowsOf("CRORepMst", "100298"), "0");
}

TEST_F(BookingInTest, aScannedAccountBringsTheCustomersName) {
    const QString name = Desk::suite("SELECT [Name] FROM DEBMaster WHERE CO = '01' AND Branch = "
                                     "'100' AND Account = 'C00002'");
    show(1, {}, [&] {
        user.typeInto("edAccount", "");
        user.type("c00002");
        user.press(Qt::Key_Return);
        EXPECT_EQ(user.sees("edAccount"), "C00002");
        EXPECT_EQ(user.sees("edName"), name);
        EXPECT_FALSE(gData->vLoadQuery1.Active()) << "others read through it as well";
        leave();
    });
    Desk::onSuite("DROP TABLE DEBMaster");
    user.expectForm("Debtors: Customer Selection", [&] { user.press(Qt::Key_Escape); });
    show(1, {}, [&] {
        user.typeInto("edAccount", "C00002");
        user.press(Qt::Key_Return);
        ASSERT_FALSE(desk.shown.isEmpty());
        EXPECT_TRUE(desk.shown[0].startsWith("100A-003|SQL Error reading DEBMaster\r"))
            << desk.shown[0].toStdString();
        leave();
    });
}

TEST_F(BookingInTest, theRegisterListsSearchesAndFindsItsPlaceAgain) {
    TfrmCRO100 screen;
    screen.resize(1024, 768);
    user.expectForm(headerTitle, [&] {
        EXPECT_EQ(user.sees("edCRONo"), "100299");
        user.typeInto("edReference", "CHANGED");
        user.typeInto("edCellphone", "0825550111");
        user.press(Qt::Key_F10);
    });
    user.workIn(screen, [&] {
        EXPECT_EQ(namelessControls(screen).join("\n").toStdString(), "");
        EXPECT_EQ(clippedControls(screen).join("\n").toStdString(), "");
        const auto orders = user.column("Order #No");
        EXPECT_EQ(orders.size(), 300);
        EXPECT_EQ(orders.first(), "100300");
        EXPECT_EQ(orders.last(), "100001");
        user.click("btnNext");
        user.press(Qt::Key_Return, Qt::ControlModifier);
        EXPECT_EQ(user.current("Order #No"), "100299") << "found again after the change";
        EXPECT_EQ(user.current("Reference"), "CHANGED");
        user.click("btnLast");
        EXPECT_EQ(user.current("Order #No"), "100001");
        user.click("btnFirst");
        EXPECT_EQ(user.current("Order #No"), "100300");
        user.press(Qt::Key_Escape);
    });
    EXPECT_TRUE(desk.shown.isEmpty()) << desk.shown.join('\n').toStdString();
}

TEST_F(BookingInTest, aSearchReachesOtherBranchesButForTheNumber) {
    Desk::onSuite("INSERT INTO CRORepMst ([CO], [Branch], [CRONo], [Name]) VALUES "
                  "('01', '101', '777777', 'Qwxyz Far Away')");
    TfrmCRO100 screen;
    screen.resize(1024, 768);
    user.workIn(screen, [&] {
        const auto search = [&](const QString& text) {
            user.click("btnLookup");
            user.typeInto("edSearchText", text);
            user.click("btnSearch");
            return user.column("Order #No");
        };
        EXPECT_EQ(search("qwxyz"), QStringList("777777"));
        EXPECT_EQ(search("777777"), QStringList()) << "the number is bound to the branch";
        EXPECT_EQ(search("100299"), QStringList("100299"));
        EXPECT_EQ(search("no such thing"), QStringList());
        user.press(Qt::Key_R, Qt::ControlModifier);
        EXPECT_EQ(user.column("Order #No").size(), 300);
        EXPECT_EQ(search("  ").size(), 300) << "a blank search does nothing";
        user.press(Qt::Key_Escape);
        EXPECT_TRUE(screen.isVisible()) << "Escape hides the panel first";
        user.press(Qt::Key_Escape);
    });
}

TEST_F(BookingInTest, aQuoteInTheSearchIsAFailedRead) {
    TfrmCRO100 screen;
    screen.resize(1024, 768);
    user.workIn(screen, [&] {
        user.click("btnLookup");
        user.typeInto("edSearchText", "O'Brien");
        user.click("btnSearch");
        user.press(Qt::Key_R, Qt::ControlModifier);
        EXPECT_EQ(user.column("Order #No").size(), 300) << "the screen can be used on";
        user.press(Qt::Key_Escape);
    });
    ASSERT_EQ(desk.shown.size(), 1);
    EXPECT_TRUE(
        desk.shown[0].startsWith("100-001|SQL Error reading object \"CRORepMst\". Details: \r"))
        << desk.shown[0].toStdString();
    EXPECT_EQ(raised.size(), 1) << "and raised again";
}

TEST_F(BookingInTest, anEmptyRegisterTakesNoActionAndSaysNothing) {
    Desk::onSuite("DELETE FROM CRORepMst");
    TfrmCRO100 screen;
    screen.resize(1024, 768);
    user.workIn(screen, [&] {
        for (const char* button : {"btnUpdate", "btnDelete", "btnFirst", "btnLast"}) {
            user.click(button);
        }
        EXPECT_TRUE(screen.isVisible());
        EXPECT_EQ(clippedControls(screen).join("\n").toStdString(), "");
        user.press(Qt::Key_Escape);
    });
    EXPECT_TRUE(desk.shown.isEmpty());
}

TEST_F(BookingInTest, theRegistersKeysBookInChangeDeleteAndSearch) {
    Desk::onSuite("UPDATE CRORepMst SET [Cellphone] = '0825550111' WHERE [CRONo] = '100300'");
    TfrmCRO100 screen;
    screen.resize(1024, 768);
    user.expectForm(headerTitle, [&] {
        EXPECT_EQ(user.sees("edCRONo"), "") << "Insert books in";
        fill("Keyed");
        user.press(Qt::Key_F10);
    });
    user.expectForm(headerTitle, [&] {
        EXPECT_EQ(user.sees("btnSave"), "DELETE");
        EXPECT_EQ(user.sees("edCRONo"), "100300");
        user.press(Qt::Key_F10);
    });
    user.workIn(screen, [&] {
        user.press(Qt::Key_Insert);
        EXPECT_EQ(user.current("Order #No"), "100501") << "the first row, nothing is located";
        EXPECT_EQ(user.current("Name"), "Keyed");
        user.press(Qt::Key_Down);
        user.press(Qt::Key_Delete);
        EXPECT_EQ(user.column("Order #No").mid(0, 2), QStringList({"100501", "100299"}));

        user.press(Qt::Key_S, Qt::AltModifier);
        user.type("key");
        user.press(Qt::Key_Backspace);
        user.press(Qt::Key_Delete);
        user.type("yed");
        EXPECT_EQ(user.sees("edSearchText"), "keyed") << "Delete works in the text, not on orders";
        user.press(Qt::Key_Return);
        EXPECT_EQ(user.column("Order #No"), QStringList("100501"));
        user.press(Qt::Key_R, Qt::ControlModifier);
        EXPECT_EQ(user.column("Order #No").size(), 300);
        user.press(Qt::Key_S, Qt::ControlModifier);
        EXPECT_EQ(user.column("Order #No"), QStringList("100501"))
            << "the text of before, without opening the panel";
        user.press(Qt::Key_Escape);
    });
    EXPECT_TRUE(desk.shown.isEmpty()) << desk.shown.join('\n').toStdString();
}

TEST_F(BookingInTest, enterAndTabGoThroughTheHeaderInTheOrderThatIsSeen) {
    const QStringList order = {
        "edTranDate",  "edReceiveDate", "cmbReceiveMthd", "edReference", "edAccount",  "edName",
        "edAddress1",  "edAddress2",    "edAddress3",     "edAddress4",  "edPostCode", "edContact",
        "edCellphone", "edTelephone1",  "edTelephone2",   "edEMail",
    };
    show(1, {}, [&] {
        user.form().resize(683, 512); // and on a small screen scrolls to where the user is
        for (const auto key : {Qt::Key_Tab, Qt::Key_Return}) {
            user.find<QWidget>("edTranDate").setFocus();
            QStringList visited = {user.focus()};
            while (visited.size() < order.size()) {
                if (user.focus() == "edAccount") {
                    user.typeInto("edAccount", "C00002");
                }
                user.press(key);
                visited.append(user.focus());
                const QWidget& at = user.find<QWidget>(user.focus());
                EXPECT_EQ(at.visibleRegion().boundingRect(), at.rect())
                    << user.focus().toStdString() << " is not in sight";
            }
            EXPECT_EQ(visited, order) << visited.join(' ').toStdString();
        }
        leave();
    });
}

TEST_F(BookingInTest, scannedTextAndDatesOfManyShapesArriveWhole) {
    user.expectForm("", [&] {
        user.press(Qt::Key_Right);
        user.press(Qt::Key_Return);
    });
    show(1, {}, [&] {
        for (int i = 0; i < 20; ++i) {
            user.typeInto("edAccount", "");
            user.type("c00002");
            user.press(Qt::Key_Return);
            ASSERT_EQ(user.sees("edAccount"), "C00002") << i;
            ASSERT_EQ(user.focus(), "edName") << i;
        }
        user.typeInto("edTranDate", "2026-1-31");
        user.press(Qt::Key_Return);
        EXPECT_EQ(user.sees("edTranDate"), "2026/01/31");
        user.typeInto("edCellphone", "0825550199");
        user.typeInto("edReceiveDate", "2026/02/30");
        user.press(Qt::Key_F10);
        EXPECT_EQ(user.message(), "Received Date is not a date. Type it as yyyy/mm/dd.");
        EXPECT_EQ(user.focus(), "edReceiveDate");
        EXPECT_EQ(user.sees("edReceiveDate"), "2026/02/30") << "what was typed stays";
        user.typeInto("edReceiveDate", "2026/02/27");
        user.click("btnReceiveDate");
        EXPECT_EQ(user.sees("edReceiveDate"), "2026/02/28") << "picked from the calendar";
        user.press(Qt::Key_F10);
    });
    EXPECT_EQ(column("100501", "TranDate"), "2026/01/31");
    EXPECT_EQ(column("100501", "ReceiveDate"), "2026/02/28");
    EXPECT_EQ(column("100501", "Account"), "C00002");
}

// 1024 x 768 at 100, 125 and 150 %, and a large screen.
TEST_F(BookingInTest, theScreensFitEverySeat) {
    const QSize sizes[] = {{1024, 768}, {819, 614}, {683, 512}, {1920, 1080}};
    for (const QSize size : sizes) {
        TfrmCRO100 orders;
        TfrmCRO100A header;
        TfrmCRO900 debtors;
        TfrmCRO910 serials;
        header.xFunction = 2;
        header.xRecID = recID("100300");
        for (QDialog* screen : {static_cast<QDialog*>(&orders), static_cast<QDialog*>(&header),
                                static_cast<QDialog*>(&debtors), static_cast<QDialog*>(&serials)}) {
            screen->resize(size);
            user.workIn(*screen, [&] {
                const QString name = screen->windowTitle() + QString(" %1").arg(size.width());
                EXPECT_EQ(screen->size(), size) << name.toStdString();
                EXPECT_EQ(clippedControls(*screen).join("\n").toStdString(), "")
                    << name.toStdString();
                keepPicture(*screen, name.section(": ", 1));
                user.press(Qt::Key_Escape);
            });
        }
    }
}
