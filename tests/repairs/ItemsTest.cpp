// The items of an order: booked in by scan, changed, deleted, and listed below their order.
#include "data/DateTimeText.h"
#include "data/Session.h"
#include "repairs/CRO100.h"
#include "repairs/ItemDesk.h"
#include "repairs/SysCRO.h"
#include "support/DetailColumns.h"
#include "support/ScreenChecks.h"
#include "support/TypedAhead.h"

using velcro::test::Desk;

namespace {

class ItemsTest : public ItemDesk
{
};

} // namespace

TEST_F(ItemsTest, anItemIsBookedInByScanWithAllThatHangsBelowIt) {
    user.expectForm(itemTitle, [&] {
        EXPECT_EQ(namelessControls(user.form()).join("\n").toStdString(), "");
        EXPECT_EQ(clippedControls(user.form()).join("\n").toStdString(), "");
        EXPECT_EQ(user.sees("edCRONo") + user.sees("edAccount") + user.sees("edName"),
                  "900001C00002O'Brien");
        EXPECT_EQ(user.focus(), "edSerialNo");
        user.type(serial(7));
        user.press(Qt::Key_Return);
        EXPECT_EQ(user.sees("edStockCode"), stock("T0.StockCode", serial(7)));
        EXPECT_EQ(user.sees("edLinkCode"), stock("T0.LinkCode", serial(7)));
        EXPECT_EQ(user.sees("edDescription1"), stock("T1.Description1", serial(7)));
        EXPECT_EQ(user.focus(), "edModelNo");
        user.type("MX-1 'quoted'");
        user.press(Qt::Key_Return);
        user.press(Qt::Key_Space);
        EXPECT_EQ(user.sees("tsWarranty"), "In Warranty");
        user.press(Qt::Key_Return);
        user.type("Fell down the stairs");
        keepPicture(user.form(), "item-filled");
        tick("grdIntakes", {"REMOTE", "BOX", "DENT", "BAG"});
        tick("grdIntakes", {"BAG"});
        note("grdIntakes", "REMOTE", "no lid");
        user.press(Qt::Key_Return);
        keepPicture(user.form(), "item-intakes");
        tick("grdFaults", {"NOPOWER", "CABLE"});
        EXPECT_EQ(tabs(), "Item Information, Intakes (3), Faults (2)");
        user.press(Qt::Key_F10);
    });
    showList([&] {
        EXPECT_EQ(user.rowCount(), 0);
        user.press(Qt::Key_Insert);
        EXPECT_EQ(user.column("Serial Number"), QStringList(serial(7)));
        EXPECT_EQ(user.column("In Warranty"), QStringList("Y"));
        EXPECT_EQ(clippedControls(user.form()).join("\n").toStdString(), "");
        keepPicture(user.form(), "item-list");
    });
    const QString today = sfg_Date(0);
    EXPECT_EQ(below("CRORepItems", "[ItemNo], [ModelNo], [SerialNo], [InWarranty], [Notes]"),
              "1=MX-1 'quoted'=" + serial(7) + "=Y=Fell down the stairs");
    EXPECT_EQ(below("CRORepItmIntake", "[ItemNo], [IntakeCode], [Notes]"),
              "1=BOX=|1=DENT=PHOTOGRAPH|1=REMOTE=no lid");
    EXPECT_EQ(below("CRORepItmFaults", "[ItemNo], [FaultCode], [Notes]"),
              "1=CABLE=DO NOT PLUG IN|1=NOPOWER=");
    EXPECT_EQ(below("CRORepItmAudit", "[ItemNo], [TranDate], [ProcessCode], [TechCode], [Notes]"),
              "1=" + today + "===Order Item Added");
    EXPECT_EQ(below("CRORepItmQuoteHdr", "[ItemNo], [TranDate], [TechCode], [Status], "
                                         "[DepositRequired], [DepositPaid], [OrderNo], [Notes]"),
              "1=" + today + "==0=0=0=501001=Fell down the stairs");
    EXPECT_EQ(column("900001", "ReceiveItems"), "1");
    EXPECT_EQ(column("900001", "DTOUser"), "X") << "the order's stamp is left alone";
    EXPECT_TRUE(desk.shown.isEmpty() && raised.isEmpty()) << desk.shown.join('\n').toStdString();
}

TEST_F(ItemsTest, everyColumnIsKept) {
    expectEveryColumnIsKept(user,
                            {.screen =
                                 [] {
                                     auto screen = std::make_unique<TfrmCRO101A>();
                                     screen->showOrder(order());
                                     return screen;
                                 },
                             .typed = {{"edSerialNo", {serial(1), serial(2)}}},
                             .others = {{"Branch", "100"}, {"CRONo", "900001"}, {"ItemNo", "1"}}});
}

TEST_F(ItemsTest, refusalsComeInOrderOnTheirPage) {
    showItem(1, {}, [&] {
        const struct
        {
            const char* control;
            QString text, message, focus;
        } steps[] = {
            {"edModelNo", "M", "Serial number field cannot be empty.", "edSerialNo"},
            {"edSerialNo", "  ", "Serial number field cannot be empty.", "edSerialNo"},
            {"edSerialNo", "never looked up", "Serial number entered is invalid", "edSerialNo"},
            {"edSerialNo", serial(1), {}, "edModelNo"},
            {"edModelNo", " ", "Model number field cannot be empty.", "edModelNo"},
        };
        for (const auto& [control, text, message, focus] : steps) {
            user.typeInto(control, text);
            user.press(message.isNull() ? Qt::Key_Return : Qt::Key_F10);
            EXPECT_EQ(user.message(), message);
            EXPECT_EQ(user.focus(), focus);
        }
        list("grdFaults");
        user.press(Qt::Key_F10);
        EXPECT_EQ(user.focus(), "edModelNo");
        EXPECT_TRUE(user.find<QWidget>("edModelNo").isVisible()) << "the page comes forward";
        leave();
    });
    EXPECT_EQ(counts(), "0 0 0 0 0, 0");
}

TEST_F(ItemsTest, anUpdateWritesTheTicksAnewWithTheWorkshopsNotes) {
    showItem(1, {}, [&] {
        fillItem(serial(1));
        tick("grdIntakes", {"BOX", "REMOTE"});
        note("grdIntakes", "REMOTE", "no lid");
        tick("grdFaults", {"NOISE"});
        user.press(Qt::Key_F10);
    });
    Desk::onSuite("INSERT INTO CRORepItmFaults ([CO], [Branch], [CRONo], [ItemNo], [FaultCode]) "
                  "VALUES ('01', '100', '900001', '1', 'RETIRED')");
    Desk::onSuite("UPDATE CRORepItmIntake SET [IntakeCode] = 'box' WHERE [CRONo] = '900001' AND "
                  "[IntakeCode] = 'BOX'");
    showItem(2, "1", [&] {
        EXPECT_EQ(user.focus(), "edModelNo");
        EXPECT_EQ(user.sees("edDescription1"), stock("T1.Description1", serial(1)));
        EXPECT_FALSE(user.find<QWidget>("btnSerialNo").isVisible());
        EXPECT_EQ(user.find<QWidget>("edSerialNo").property("locked"), true);
        EXPECT_EQ(tabs(), "Item Information, Intakes (2), Faults (1)");
        keepPicture(user.form(), "item-update");
        user.press(Qt::Key_Tab, Qt::ShiftModifier);
        EXPECT_NE(user.focus(), "edSerialNo") << "nobody comes by it";
        user.typeInto("edSerialNo", serial(2));
        user.press(Qt::Key_Return);
        user.typeInto("edNotes", "swapped");
        tick("grdIntakes", {"DENT"});
        tick("grdFaults", {"NOISE", "LEAK"});
        user.press(Qt::Key_F10);
    });
    EXPECT_EQ(below("CRORepItems", "[ItemNo], [ModelNo], [SerialNo], [InWarranty], [Notes]"),
              "1=MODEL-1=" + serial(2) + "=N=swapped");
    EXPECT_EQ(below("CRORepItmIntake", "[IntakeCode], [Notes]"),
              "BOX=|DENT=PHOTOGRAPH|REMOTE=WITH BATTERIES");
    EXPECT_EQ(below("CRORepItmFaults", "[FaultCode]"), "LEAK");
    EXPECT_EQ(below("CRORepItmAudit", "[Notes]"), "Order Item Added|Order Item Modified");
    EXPECT_EQ(below("CRORepItmQuoteHdr", "[OrderNo], [Notes]"), "501001=") << "is left alone";
    EXPECT_TRUE(desk.shown.isEmpty()) << desk.shown.join('\n').toStdString();
}

TEST_F(ItemsTest, aDeleteTakesAllButTheAuditAndFreesTheHighestNumberAlone) {
    for (int n : {1, 2, 3}) {
        bookIn(serial(n));
    }
    for (const char* table : {"CRORepItmImages", "CRORepItmProcess", "CRORepItmQuoteDet"}) {
        Desk::onSuite(QString("INSERT INTO ") + table +
                      " ([CO], [Branch], [CRONo], [ItemNo]) VALUES ('01', '100', '900001', '2')");
    }
    EXPECT_EQ(counts(), "3 6 3 3 3, 3");
    showItem(3, "2", [&] {
        EXPECT_EQ(user.message(), "Press [F10] to Delete");
        EXPECT_EQ(user.sees("btnSave"), "DELETE");
        EXPECT_FALSE(user.find<QWidget>("MainPager").isEnabled());
        EXPECT_EQ(tabs(), "Item Information, Intakes (2), Faults (1)");
        keepPicture(user.form(), "item-delete");
        user.press(Qt::Key_F10);
    });
    EXPECT_EQ(counts(), "2 4 2 4 2, 2");
    for (const char* table : {"CRORepItmImages", "CRORepItmProcess", "CRORepItmQuoteDet"}) {
        EXPECT_EQ(rowsOf(table, "900001"), "0") << table;
    }
    bookIn(serial(2));
    EXPECT_EQ(below("CRORepItems", "[ItemNo]"), "1|3|4") << "a gap is not filled";
    showItem(3, "4", [&] { user.press(Qt::Key_F10); });
    bookIn(serial(2));
    EXPECT_EQ(below("CRORepItems", "[ItemNo]"), "1|3|4") << "the highest is free again";
    EXPECT_EQ(below("CRORepItmAudit", "[ItemNo], [Notes]").count("Order Item Deleted"), 2);
}

TEST_F(ItemsTest, theSerialIsPickedTypedAndRefused) {
    const auto takeFirst = [&] { user.press(Qt::Key_Return); };
    const auto takeNone = [&] { user.press(Qt::Key_Escape); };
    for (const auto& answer : {ScriptedUser::Step(takeFirst), ScriptedUser::Step(takeNone),
                               ScriptedUser::Step(takeFirst), ScriptedUser::Step(takeNone)}) {
        user.expectForm(serialsTitle, answer);
    }
    const QString last = Desk::suite("SELECT TOP(1) [SerialNo] FROM STKSerialMst WHERE [CO] = '01' "
                                     "AND [Branch] = '100' ORDER BY [SerialNo] DESC");
    const QString unknown = "Invalid Serial Number Entered";
    const auto expectSeen = [&](const QString& serialNo, const QString& code,
                                const QString& message, const QString& focus) {
        EXPECT_EQ(user.sees("edSerialNo"), serialNo);
        EXPECT_EQ(user.sees("edStockCode"), code);
        EXPECT_EQ(user.message(), message);
        EXPECT_EQ(user.focus(), focus);
    };
    showItem(1, {}, [&] {
        user.press(Qt::Key_Return);
        expectSeen("", "", "", "edSerialNo");
        user.type("?");
        user.press(Qt::Key_Return);
        expectSeen(last, stock("T0.StockCode", last), "", "edModelNo");
        user.typeInto("edSerialNo", "?");
        user.press(Qt::Key_Return);
        expectSeen("", "", unknown, "edSerialNo");
        user.click("btnSerialNo");
        expectSeen(last, stock("T0.StockCode", last), unknown, "edSerialNo");
        user.click("btnSerialNo");
        expectSeen("", "", unknown, "edSerialNo");

        user.typeInto("edSerialNo", "NOBODY'S");
        user.press(Qt::Key_Tab);
        expectSeen("NOBODY'S", "", unknown, "edSerialNo");
        user.type(serial(3).toLower()); // the next scan takes its place
        user.press(Qt::Key_Tab);
        expectSeen(serial(3), stock("T0.StockCode", serial(3)), "", "edModelNo");
        user.typeInto("edSerialNo", "?");
        user.click("edNotes");
        expectSeen("?", stock("T0.StockCode", serial(3)), unknown, "edSerialNo");
        user.typeInto("edSerialNo", "gone");
        QTest::mouseClick(user.find<QTabWidget>("MainPager").tabBar(), Qt::LeftButton, {},
                          user.find<QTabWidget>("MainPager").tabBar()->tabRect(1).center());
        QApplication::processEvents();
        expectSeen("gone", stock("T0.StockCode", serial(3)), unknown, "edSerialNo");
        EXPECT_TRUE(user.find<QWidget>("edSerialNo").isVisible());
        leave();
    });
}

TEST_F(ItemsTest, whatBecameOfTheArticlePlaysNoPartAndNoSerialIsTakenTwice) {
    Desk::onSuite("UPDATE STKSerialMst SET [Status] = 'D' WHERE [SerialNo] = '" + serial(1) + "'");
    Desk::onSuite("UPDATE STKSerialMst SET [Status] = '9' WHERE [SerialNo] = '" + serial(2) + "'");
    for (const int n : {1, 2, 1}) {
        bookIn(serial(n));
    }
    EXPECT_EQ(below("CRORepItems", "[SerialNo]"), serial(1) + "|" + serial(2) + "|" + serial(1));
    // Only an item whose serial number is 0 stands in the way, and it stands in everybody's.
    Desk::onSuite("UPDATE CRORepItems SET [SerialNo] = '0' WHERE [RecID] = '" +
                  QString::number(item("2")) + "'");
    showItem(1, {}, [&] {
        fillItem(serial(4));
        list("grdIntakes");
        user.press(Qt::Key_F10);
        EXPECT_EQ(user.message(), "Repair order item already exists.");
        EXPECT_EQ(user.sees("edItemNo"), "4");
        EXPECT_TRUE(user.find<QWidget>("edSerialNo").isVisible());
        leave();
    });
    EXPECT_EQ(counts().left(1), "3");
}

TEST_F(ItemsTest, theListStandsBelowItsOrderAndWorksByItsKeys) {
    bookIn(serial(1));
    bookIn(serial(2));
    user.expectForm(itemTitle, [&] {
        EXPECT_EQ(user.sees("edItemNo"), "2") << "Enter changes";
        user.typeInto("edNotes", QString(100, 'W'));
        user.press(Qt::Key_F10);
    });
    user.expectForm(itemTitle, [&] {
        EXPECT_EQ(user.sees("btnSave"), "DELETE");
        EXPECT_EQ(user.sees("edItemNo"), "2");
        user.press(Qt::Key_F10);
    });
    gMainRecID = item("2");
    showList([&] {
        EXPECT_EQ(namelessControls(user.form()).join("\n").toStdString(), "");
        EXPECT_EQ(user.sees("edCRONo") + user.sees("edAccount") + user.sees("edName"),
                  "900001C00002O'Brien");
        EXPECT_EQ(gMainRecID, 0);
        EXPECT_EQ(user.focus(), "grdList");
        EXPECT_EQ(user.current("Item #No"), "2") << "where another module leads";
        EXPECT_THROW(user.column("Order #No"), std::runtime_error) << "hidden";
        for (const char* below : {"btnImages", "btnProcesses", "btnQuotation"}) {
            EXPECT_TRUE(user.find<QWidget>(below).isEnabled()) << below;
        }
        user.press(Qt::Key_Return);
        EXPECT_EQ(user.current("Item #No"), "2") << "found again";
        EXPECT_EQ(user.current("Notes"), QString(100, 'W'));
        EXPECT_EQ(clippedControls(user.form()).join("\n").toStdString(), "");
        user.press(Qt::Key_Delete);
        EXPECT_EQ(user.column("Item #No"), QStringList("1"));
        Desk::onSuite("DELETE FROM STKSerialMst WHERE [SerialNo] = '" + serial(1) + "'");
        user.press(Qt::Key_R, Qt::ControlModifier);
        EXPECT_EQ(user.rowCount(), 0) << "an item whose serial number is gone drops out";
        for (const auto key : {Qt::Key_Return, Qt::Key_Delete}) {
            user.press(key);
        }
    });
    EXPECT_EQ(column("900001", "ReceiveItems"), "1") << "and is counted all the same";
    EXPECT_TRUE(desk.shown.isEmpty()) << desk.shown.join('\n').toStdString();
}

TEST_F(ItemsTest, theRegisterOpensTheItemsAndShowsTheirCount) {
    TfrmCRO100 screen;
    screen.resize(1024, 768);
    user.expectForm(itemTitle, [&] {
        EXPECT_EQ(user.sees("edName"), "O'Brien");
        user.expectForm(itemTitle, [&] {
            fillItem(serial(5));
            user.press(Qt::Key_F10);
        });
        user.press(Qt::Key_Insert);
        user.press(Qt::Key_Escape);
    });
    user.workIn(screen, [&] {
        EXPECT_EQ(user.current("Order #No"), "900001");
        EXPECT_EQ(user.current("Received Items"), "0");
        user.press(Qt::Key_Return);
        EXPECT_EQ(user.current("Order #No"), "900001");
        EXPECT_EQ(user.current("Received Items"), "1");
        user.press(Qt::Key_Escape);
    });
}

// 1024 x 768 at 100, 125 and 150 %, and a large screen; with long names and without any codes.
TEST_F(ItemsTest, theScreensFitEverySeat) {
    const QString longName = QString::fromUtf8("Fröhlich-Überhausener & Söhne, Household Repairs");
    const RepairOrderKey key{order().xRecID, "900001", "C00002", longName.repeated(2)};
    Desk::onSuite("UPDATE STKMaster SET [Description1] = '" + longName + "'");
    Desk::onSuite("UPDATE CROCodeMaster SET [Description] = N'" + longName.repeated(2) + "'");
    bookIn(serial(1));
    for (const bool empty : {false, true}) {
        if (empty) {
            Desk::onSuite("DELETE FROM CROCodeMaster");
            Desk::onSuite("DELETE FROM CRORepItems");
        }
        for (const QSize size :
             {QSize(1024, 768), QSize(819, 614), QSize(683, 512), QSize(1920, 1080)}) {
            TfrmCRO101 items(key);
            TfrmCRO101A detail;
            detail.xFunction = empty ? 1 : 2;
            detail.xRecID = item("1");
            detail.showOrder(key);
            for (QDialog* screen :
                 {static_cast<QDialog*>(&items), static_cast<QDialog*>(&detail)}) {
                screen->resize(size);
                user.workIn(*screen, [&] {
                    auto* pager = screen->findChild<QTabWidget*>("MainPager");
                    for (int page = 0; page < (pager != nullptr ? pager->count() : 1); ++page) {
                        if (pager != nullptr) {
                            pager->setCurrentIndex(page);
                        }
                        const QString name = QString("%1-%2-%3-%4")
                                                 .arg(screen->objectName())
                                                 .arg(size.width())
                                                 .arg(page)
                                                 .arg(empty ? "empty" : "long");
                        QApplication::processEvents();
                        EXPECT_EQ(screen->size(), size) << name.toStdString();
                        EXPECT_EQ(clippedControls(*screen).join("\n").toStdString(), "")
                            << name.toStdString();
                        if (pager != nullptr && page > 0) {
                            const auto* list =
                                pager->currentWidget()->findChild<velcro::ui::ChecklistGrid*>();
                            EXPECT_EQ(list->accessibleDescription().startsWith("There are no "),
                                      empty)
                                << name.toStdString();
                        }
                        keepPicture(*screen, name);
                    }
                    user.press(Qt::Key_Escape);
                });
            }
        }
    }
}
