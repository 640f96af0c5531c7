// What goes wrong while an article is booked in: others who delete it meanwhile, codes of every kind,
// reads that fail, numbers that cannot be had, a server that goes away, scans that come too fast.
#include "data/DataModules.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "repairs/ItemDesk.h"
#include "repairs/SysCRO.h"
#include "support/DroppingServer.h"
#include "support/FakeServer.h"
#include "support/TypedAhead.h"
#include "ui/Events.h"

#include <QFile>
#include <QRegularExpression>

using velcro::test::Desk;

namespace {

class ItemFaultsTest : public ItemDesk
{
protected:
    ItemFaultsTest() { gData->ConnectDB_VEL(gDBConnector, gCmnHost, "VELSUITE", {}, {}, "N"); }

    static void startAfresh() {
        for (const char* table : {"CRORepItems", "CRORepItmIntake", "CRORepItmFaults",
                                  "CRORepItmAudit", "CRORepItmQuoteHdr"}) {
            Desk::onSuite(QString("DELETE FROM ") + table + " WHERE [CRONo] = '900001'");
        }
        Desk::onSuite("UPDATE CRORepMst SET [ReceiveItems] = 0 WHERE [CRONo] = '900001'");
    }
    /// What F10 leaves on the screen and in the database when the n-th call of the save finds the
    /// connection gone: whether the screen stays, how often it was told, and the counts.
    QString saveLosing(int xFunction, int call) {
        QString outcome;
        const auto told = [this] { return desk.shown.size() + raised.size(); };
        startAfresh();
        if (xFunction != 1) {
            bookIn(serial(1));
        }
        const auto before = told();
        showItem(xFunction, "1", [&] {
            if (xFunction == 1) {
                fillItem(serial(1));
                tick("grdIntakes", {"BOX", "BAG"});
                tick("grdFaults", {"NOISE"});
            }
            server.dropAt(call);
            user.press(Qt::Key_F10);
            const bool stays = user.form().isVisible();
            EXPECT_TRUE(server.dropped()) << call;
            server.forget();
            outcome =
                QString("%1, told %2: ").arg(stays ? "stays" : "closes").arg(told() - before) +
                counts();
            if (stays) {
                user.press(Qt::Key_F10); // nothing is lost, and the screen can be used on
                EXPECT_EQ(counts().left(1), xFunction == 3 ? "0" : "1") << call;
            }
        });
        return outcome;
    }
    void expectLosses(int xFunction, const QStringList& expected) {
        for (int call = 1; call <= expected.size(); ++call) {
            EXPECT_EQ(saveLosing(xFunction, call), expected[call - 1]) << "lost at call " << call;
        }
    }
    /// Verbs and tables of the batch that failed last, in their order.
    QString failedBatch() {
        QFile file(desk.workingFolder() + "SQL/SQLError-Velmara.TXT");
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(file.readAll());
        QStringList verbs;
        static const QRegularExpression verb("^(INSERT INTO|UPDATE|DELETE FROM) (\\w+)",
                                             QRegularExpression::MultilineOption);
        for (const auto& found : verb.globalMatch(text)) {
            verbs << found.captured(1).section(' ', 0, 0) + " " + found.captured(2);
        }
        return verbs.join(", ");
    }
    static void breakNumbers(const QString& select) {
        Desk::onSuite("CREATE PROCEDURE VELMARA_GENERATE_NUMBER @CO nvarchar(10), @BRANCH "
                      "nvarchar(10), @MODCODE nvarchar(3), @TXTP nvarchar(6) AS " +
                      select);
    }

    velcro::test::DroppingServer server; // stands before the desk connects again
};

} // namespace

// Calls of an add: item number, duplicate check, number of the quotation, begin, batch, commit; the
// count of items, begin, update, commit.
TEST_F(ItemFaultsTest, aServerLostInAnAddLeavesAWholeItemOrNone) {
    expectLosses(1, {
                        "closes, told 0: 1 2 1 1 1, 1", // as item 0: nobody asks for the failure
                        "stays, told 1: 0 0 0 0 0, 0",
                        "stays, told 1: 0 0 0 0 0, 0",
                        "stays, told 1: 0 0 0 0 0, 0",
                        "closes, told 1: 0 0 0 0 0, 0",
                        "closes, told 1: 0 0 0 0 0, 0",
                        "closes, told 0: 1 2 1 1 1, 0", // a count that failed is 0
                        "closes, told 1: 1 2 1 1 1, 0",
                        "closes, told 1: 1 2 1 1 1, 0",
                        "closes, told 1: 1 2 1 1 1, 0",
                    });
}

// Begin, deletions, commit; begin, batch, commit; count, begin, update, commit.
TEST_F(ItemFaultsTest, aServerLostInAnUpdateKeepsTheTicksUntilTheyAreTakenAway) {
    expectLosses(2, {
                        "stays, told 1: 1 2 1 1 1, 1",
                        "closes, told 1: 1 2 1 1 1, 1",
                        "closes, told 1: 1 2 1 1 1, 1",
                        "stays, told 1: 1 0 0 1 1, 1", // the screen still has them
                        "closes, told 1: 1 0 0 1 1, 1",
                        "closes, told 1: 1 0 0 1 1, 1",
                        "closes, told 0: 1 2 1 2 1, 0",
                        "closes, told 1: 1 2 1 2 1, 1",
                        "closes, told 1: 1 2 1 2 1, 1",
                        "closes, told 1: 1 2 1 2 1, 1",
                    });
}

// Begin, batch, commit; count, begin, update, commit.
TEST_F(ItemFaultsTest, aServerLostInADeleteTakesTheItemWholeOrNot) {
    expectLosses(3, {
                        "stays, told 1: 1 2 1 1 1, 1",
                        "closes, told 1: 1 2 1 1 1, 1",
                        "closes, told 1: 1 2 1 1 1, 1",
                        "closes, told 0: 0 0 0 2 0, 0",
                        "closes, told 1: 0 0 0 2 0, 1",
                        "closes, told 1: 0 0 0 2 0, 1",
                        "closes, told 1: 0 0 0 2 0, 1",
                    });
}

TEST_F(ItemFaultsTest, theStatementsOfASaveComeInTheirOrder) {
    const struct
    {
        int xFunction, lostAt;
        const char* batch;
    } saves[] = {
        {1, 5,
         "INSERT CRORepItems, INSERT CRORepItmIntake, INSERT CRORepItmIntake, INSERT "
         "CRORepItmFaults, INSERT CRORepItmAudit, INSERT CRORepItmQuoteHdr"},
        {2, 2, "DELETE CRORepItmFaults, DELETE CRORepItmIntake"},
        {2, 5,
         "UPDATE CRORepItems, INSERT CRORepItmIntake, INSERT CRORepItmIntake, INSERT "
         "CRORepItmFaults, INSERT CRORepItmAudit"},
        {3, 2,
         "DELETE CRORepItems, DELETE CRORepItmFaults, DELETE CRORepItmImages, DELETE "
         "CRORepItmIntake, DELETE CRORepItmProcess, DELETE CRORepItmQuoteDet, DELETE "
         "CRORepItmQuoteHdr, INSERT CRORepItmAudit"},
        {3, 6, "UPDATE CRORepMst"},
    };
    for (const auto& [xFunction, lostAt, batch] : saves) {
        saveLosing(xFunction, lostAt);
        EXPECT_EQ(failedBatch(), batch);
    }
}

TEST_F(ItemFaultsTest, withoutANumberForTheQuotationThereIsNoItem) {
    const auto save = [&](bool stays) {
        showItem(1, {}, [&] {
            fillItem(serial(1));
            tick("grdIntakes", {"BOX"});
            user.press(Qt::Key_F10);
            EXPECT_EQ(user.form().isVisible(), stays);
            EXPECT_EQ(counts(), "0 0 0 0 0, 0");
            if (stays) {
                EXPECT_EQ(tabs(), "Item Information, Intakes (1), Faults");
                Desk::onSuite("DROP PROCEDURE VELMARA_GENERATE_NUMBER");
                user.press(Qt::Key_F10);
            }
        });
    };
    breakNumbers("SELECT 7 AS [NUMBER] WHERE 1 = 0");
    Desk::onSuite("UPDATE CRORepMst SET [ReceiveItems] = 9 WHERE [CRONo] = '900001'");
    save(false);
    EXPECT_EQ(desk.shown, QStringList("100A-002|Error generating customer repair order item "
                                      "quotation number"));
    Desk::onSuite("DROP PROCEDURE VELMARA_GENERATE_NUMBER");
    breakNumbers("SELECT 0 AS [NUMBER]");
    save(true);
    ASSERT_EQ(raised.size(), 1);
    EXPECT_TRUE(raised[0].contains("\"CRO\"/\"CROQOT\"")) << raised[0].toStdString();
    EXPECT_EQ(counts(), "1 1 0 1 1, 1");
}

TEST_F(ItemFaultsTest, readsThatFailAreToldAndNothingUnreadIsWrittenOver) {
    bookIn(serial(1));
    const struct
    {
        const char* table;
        QStringList told;
    } reads[] = {
        {"CRORepItmFaults", {"101A-005|SQL Error: CRORepItmFaults\r"}},
        {"CRORepItmIntake",
         {"101A-004|SQL Error: CRORepItmIntake\r", "101A-005|SQL Error: CRORepItmFaults\r"}},
    };
    for (const auto& [table, told] : reads) {
        Desk::onSuite(QString("DROP TABLE ") + table);
        desk.shown.clear();
        showItem(2, "1", [&] {
            user.press(Qt::Key_F10);
            EXPECT_TRUE(user.message().startsWith("Could not be read: nothing can be saved."));
            user.press(Qt::Key_Escape);
        });
        ASSERT_EQ(desk.shown.size(), told.size());
        for (int i = 0; i < told.size(); ++i) {
            EXPECT_TRUE(desk.shown[i].startsWith(told[i])) << desk.shown[i].toStdString();
        }
    }
    const int row = item("1");
    for (const char* table : {"CROCodeMaster", "STKSerialMst", "CRORepItems", "CRORepItmImages"}) {
        Desk::onSuite(QString("DROP TABLE ") + table);
    }
    desk.shown.clear();
    showItem(1, {}, [&] {
        user.typeInto("edSerialNo", serial(1));
        user.press(Qt::Key_Return);
        EXPECT_EQ(user.focus(), "edSerialNo");
        leave();
    });
    TfrmCRO101A screen;
    screen.xFunction = 2;
    screen.xRecID = row;
    user.workIn(screen, [&] { user.press(Qt::Key_Escape); });
    showList([&] { EXPECT_EQ(user.rowCount(), 0); });
    const QString codes = "|SQL Error: CROCodeMaster\r";
    const QStringList told = {"101A-001" + codes,
                              "101A-002" + codes,
                              "101A-006|SQL Error on Table: STKSerialMst :-\r",
                              "101A-001" + codes,
                              "101A-002" + codes,
                              "101A-003|SQL Error reading object \"CRORepItems\". Details: \r",
                              "101-001|SQL Error reading object \"CRORepItems\". Details: \r"};
    ASSERT_EQ(desk.shown.size(), told.size()) << desk.shown.join('\n').toStdString();
    for (int i = 0; i < told.size(); ++i) {
        EXPECT_TRUE(desk.shown[i].startsWith(told[i])) << desk.shown[i].toStdString();
    }
    EXPECT_EQ(raised.size(), 1) << "the list's failure is raised again";
    EXPECT_EQ(cro_GenerateItemNo("900001") + cro_GetReceivedItemCount("900001"), 0);
    EXPECT_EQ(cro_GenerateImageID("900001", "1"), 0);
    EXPECT_EQ(gErrorCode, 1);
    EXPECT_TRUE(gErrorMsg.startsWith("SQL Error on Table: CRORepItmImages:\r"));
}

TEST_F(ItemFaultsTest, anItemThatAnotherRemovedIsToldAndCannotBeSaved) {
    bookIn(serial(1));
    const auto another = [] { Desk::onSuite("DELETE FROM CRORepItems WHERE [CRONo] = '900001'"); };
    showList([&] {
        user.expectForm(itemTitle, [&] {
            EXPECT_TRUE(user.message().contains("another user has removed it"));
            user.press(Qt::Key_F10);
            EXPECT_TRUE(user.form().isVisible());
            user.press(Qt::Key_Escape);
        });
        another();
        user.press(Qt::Key_Return);
        EXPECT_EQ(user.rowCount(), 0);
    });
    bookIn(serial(1));
    showItem(3, "1", [&] {
        another();
        user.press(Qt::Key_F10);
        EXPECT_FALSE(user.form().isVisible());
    });
    EXPECT_EQ(counts().left(5), "0 0 0");
    EXPECT_EQ(column("900001", "ReceiveItems"), "0");
    EXPECT_TRUE(desk.shown.isEmpty() && raised.isEmpty());
}

TEST_F(ItemFaultsTest, anItemWhoseSerialVanishedCanBeNeitherChangedNorDeleted) {
    bookIn(serial(1));
    Desk::onSuite("DELETE FROM STKSerialMst WHERE [SerialNo] = '" + serial(1) + "'");
    for (const int xFunction : {2, 3}) {
        showItem(xFunction, "1", [&] {
            EXPECT_EQ(user.message(), "Invalid Serial Number Entered");
            EXPECT_EQ(user.sees("edStockCode"), "");
            user.press(Qt::Key_F10);
            EXPECT_EQ(user.message(), "Serial number entered is invalid");
            user.press(Qt::Key_Escape);
        });
    }
    EXPECT_EQ(counts(), "1 2 1 1 1, 1");
}

TEST_F(ItemFaultsTest, codesOfAnyKindAreKeptAndComeBack) {
    const QString longText = QString::fromUtf8("ЖШÅ日本").repeated(20);
    const QStringList codes = {"O'B\"", "A B", QString::fromUtf8("日本語コード"), "%_[x]", "--;GO"};
    for (const QString& code : codes) {
        Desk::onSuite("INSERT INTO CROCodeMaster ([CO], [CodeType], [Code], [Description], "
                      "[Notes]) VALUES ('01', 'F', N" +
                      QuotedStr(code) + ", N" + QuotedStr(longText) + ", N" + QuotedStr(longText) +
                      ")");
    }
    showItem(1, {}, [&] {
        fillItem(serial(1));
        tick("grdFaults", codes);
        EXPECT_EQ(tabs(), "Item Information, Intakes, Faults (5)");
        note("grdFaults", codes[1], "it's \"typed\"; -- " + QString(200, 'x'));
        user.press(Qt::Key_F10); // while the note is being typed
    });
    const auto stored = below("CRORepItmFaults", "[FaultCode], [Notes]").split('|');
    ASSERT_EQ(stored.size(), codes.size());
    for (const QString& code : codes) {
        const QString typed = "it's \"typed\"; -- " + QString(200, 'x');
        EXPECT_TRUE(stored.contains(code + "=" + (code == codes[1] ? typed.left(100) : longText)))
            << code.toStdString() << " in " << stored.join('|').toStdString();
    }
    showItem(2, "1", [&] {
        EXPECT_EQ(tabs(), "Item Information, Intakes, Faults (5)");
        user.press(Qt::Key_Escape);
    });
    EXPECT_TRUE(desk.shown.isEmpty()) << desk.shown.join('\n').toStdString();
}

TEST_F(ItemFaultsTest, aChecklistOfTenThousandCodesIsTickedToItsEnd) {
    bookIn(serial(1));
    QStringList rows;
    for (int i = 0; i < 10'000; ++i) {
        rows << QString("('01', 'I', 'Z%1', 'CODE')").arg(i, 5, 10, QLatin1Char('0'));
        if (rows.size() == 1000) {
            Desk::onSuite("INSERT INTO CROCodeMaster ([CO], [CodeType], [Code], [Description]) "
                          "VALUES " +
                          rows.join(", "));
            rows.clear();
        }
    }
    Desk::onSuite("INSERT INTO CRORepItmIntake ([CO], [Branch], [CRONo], [ItemNo], [IntakeCode]) "
                  "SELECT '01', '100', '900001', '1', [Code] FROM CROCodeMaster WHERE [Code] LIKE "
                  "'Z%' AND [Code] <> 'Z09999'");
    showItem(2, "1", [&] {
        EXPECT_EQ(tabs(), "Item Information, Intakes (10001), Faults (1)");
        list("grdIntakes");
        user.press(Qt::Key_End);
        user.press(Qt::Key_Space);
        EXPECT_EQ(tabs(), "Item Information, Intakes (10002), Faults (1)");
        user.press(Qt::Key_F10);
    });
    EXPECT_EQ(counts(), "1 10002 1 2 1, 1");
}

TEST_F(ItemFaultsTest, whatIsHalfMadeWhenTheWindowClosesIsAskedAbout) {
    const auto no = [&] { user.press(Qt::Key_N); };
    showItem(1, {}, [&] {
        auto& grid = list("grdIntakes");
        const auto firstTick = grid.visualRect(grid.model()->index(0, 0)).center();
        QTest::mousePress(grid.viewport(), Qt::LeftButton, {}, firstTick);
        EXPECT_EQ(tabs(), "Item Information, Intakes, Faults") << "a tick is made by letting go";
        user.form().close();
        EXPECT_FALSE(user.form().isVisible()) << "nothing to lose";
    });
    showItem(1, {}, [&] {
        note("grdIntakes", "BOX", "dented");
        user.press(Qt::Key_Escape);
        EXPECT_TRUE(user.form().isVisible()) << "Esc ends the note alone";
        note("grdIntakes", "BOX", "torn");
        user.expectForm("System Prompt", no);
        user.form().close();
        EXPECT_EQ(user.current("Notes"), "torn");
        tick("grdFaults", {"NOISE"});
        user.expectForm("System Prompt", no);
        user.press(Qt::Key_Escape);
        EXPECT_EQ(tabs(), "Item Information, Intakes, Faults (1)");
        leave();
    });
    EXPECT_EQ(counts(), "0 0 0 0 0, 0");
}

TEST_F(ItemFaultsTest, aScanThatComesWhileAnotherIsLookedUpGoesWhereThatOneLeads) {
    showItem(1, {}, [&] {
        velcro::test::queueText(serial(1).toUpper() + "\rMX-77\r");
        velcro::test::takeQueue();
        EXPECT_EQ(user.sees("edSerialNo"), serial(1));
        EXPECT_EQ(user.sees("edModelNo").toUpper(), "MX-77");
        leave();
    });
    velcro::test::FakeServer slow;
    const auto freeFirst = qScopeGuard([] { gData.reset(); });
    slow.answer("FROM STKSerialMst", [&slow] {
        velcro::test::queueText("SECOND\r");
        for (int i = 0; i < 3; ++i) {
            velcro::ui::pumpEvents();
        }
        slow.answer("FROM STKSerialMst", {"SerialNo", "StockCode", "LinkCode", "Description1"}, {});
        velcro::sql::RowSetBuilder row({{"SerialNo", velcro::sql::ColumnType::Text},
                                        {"StockCode", velcro::sql::ColumnType::Text},
                                        {"LinkCode", velcro::sql::ColumnType::Text},
                                        {"Description1", velcro::sql::ColumnType::Text}});
        for (const char* cell : {"FIRST", "STOCK", "LINK", "Drill"}) {
            row.addBytes(cell);
        }
        row.endRow();
        return row.take();
    });
    gData->ConnectDB_VEL(gDBConnector, gCmnHost, "VELSUITE", {}, {}, "N");
    TfrmCRO101A screen;
    user.workIn(screen, [&] {
        velcro::test::queueText("FIRST\r");
        velcro::test::takeQueue();
        velcro::test::takeQueue();
        EXPECT_EQ(user.sees("edSerialNo"), "FIRST");
        EXPECT_EQ(user.sees("edStockCode"), "STOCK");
        EXPECT_EQ(user.sees("edModelNo"), "SECOND");
        EXPECT_EQ(user.focus(), "tsWarranty");
        leave();
    });
}
