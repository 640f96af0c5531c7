// The sample databases with an order that has no items yet, and short words for what the tests of its
// items do.
#pragma once

#include "repairs/BookingDesk.h"
#include "repairs/CRO101.h"
#include "repairs/CRO101A.h"
#include "ui/ChecklistGrid.h"
#include "ui/FormBuilder.h"

#include <QTabBar>
#include <QTabWidget>
#include <QTest>

inline const QString itemTitle =
    QStringLiteral("Workshop Centre: Repair Order Item Management"); // of the list as well
inline const QString serialsTitle = QStringLiteral("Serial Tracking: Serial Number Selection");

/// A user who books in what order 900001 brings.
class ItemDesk : public BookingDesk
{
protected:
    using Desk = velcro::test::Desk;

    ItemDesk() {
        Desk::onSuite("INSERT INTO CRORepMst ([CO], [Branch], [CRONo], [Account], [Name], [Status],"
                      " [DTOUser]) VALUES ('01', '100', '900001', 'C00002', 'O''Brien', '0', 'X')");
    }

    /// The n-th serial number of branch 100.
    static QString serial(int n) { return "SN" + QString::number(100100000 + n); }
    static QString stock(const QString& column, const QString& serialNo) {
        return Desk::suite("SELECT " + column +
                           " FROM STKSerialMst T0 INNER JOIN STKMaster T1 ON "
                           "T1.CO = T0.CO AND T1.Branch = T0.Branch AND T1.StockCode = "
                           "T0.StockCode AND T1.LinkCode = T0.LinkCode WHERE T0.CO = '01' AND "
                           "T0.Branch = '100' AND T0.SerialNo = '" +
                           serialNo + "'");
    }

    static RepairOrderKey order() {
        return {column("900001", "RecID").toInt(), "900001", "C00002", "O'Brien"};
    }
    /// RecID of the order's item; 0 when there is none.
    static int item(const QString& itemNo) {
        return Desk::suite("SELECT [RecID] FROM CRORepItems WHERE [CO] = '01' AND [CRONo] = "
                           "'900001' AND [ItemNo] = '" +
                           itemNo + "'")
            .toInt();
    }
    /// The column's values in the rows below the order, in their order: "a|b".
    static QString below(const QString& table, const QString& columns) {
        Statement rows(gData->Velmara);
        rows.Open(
            {"SELECT " + columns + " FROM " + table +
             " WHERE [CO] = '01' AND [Branch] = '100' AND [CRONo] = '900001' ORDER BY [RecID]"});
        QStringList found;
        for (; !rows.Eof(); rows.Next()) {
            QStringList values;
            for (int i = 0; i < int(rows.rows().columnCount()); ++i) {
                values << rows.Fields(i).AsString();
            }
            found << values.join('=');
        }
        return found.join('|');
    }
    /// What the save of an item leaves: items, intakes, faults, audit rows, quotations, and what the
    /// order says of its items.
    static QString counts() {
        QStringList numbers;
        for (const char* table : {"CRORepItems", "CRORepItmIntake", "CRORepItmFaults",
                                  "CRORepItmAudit", "CRORepItmQuoteHdr"}) {
            numbers << rowsOf(table, "900001");
        }
        return numbers.join(' ') + ", " + column("900001", "ReceiveItems");
    }

    void showItem(int xFunction, const QString& itemNo, const ScriptedUser::Step& steps) {
        TfrmCRO101A screen;
        screen.resize(1024, 768);
        screen.xFunction = xFunction;
        screen.xRecID = xFunction == 1 ? 0 : item(itemNo);
        screen.showOrder(order());
        user.workIn(screen, steps);
    }
    void showList(const ScriptedUser::Step& steps) {
        TfrmCRO101 screen(order());
        screen.resize(1024, 768);
        user.workIn(screen, [&] {
            steps();
            user.press(Qt::Key_Escape);
        });
    }

    void fillItem(const QString& serialNo, const QString& model = "MODEL-1") {
        user.typeInto("edSerialNo", serialNo);
        user.press(Qt::Key_Return);
        user.typeInto("edModelNo", model);
    }
    velcro::ui::ChecklistGrid& list(const QString& name) {
        auto& grid = user.find<velcro::ui::ChecklistGrid>(name);
        velcro::ui::bringForward(grid);
        grid.setFocus();
        return grid;
    }
    /// Turns the tick of each code over, by keyboard.
    void tick(const QString& name, const QStringList& codes) {
        auto& grid = list(name);
        for (const auto& code : codes) {
            EXPECT_TRUE(grid.locate("Code", code)) << code.toStdString();
            user.press(Qt::Key_Space);
        }
    }
    /// Types over the note of a code.
    void note(const QString& name, const QString& code, const QString& text) {
        auto& grid = list(name);
        EXPECT_TRUE(grid.locate("Code", code)) << code.toStdString();
        for (int i = 0; i < 3; ++i) {
            user.press(Qt::Key_Right);
        }
        user.type(text);
    }
    QString tabs() {
        const auto& pager = user.find<QTabWidget>("MainPager");
        QStringList captions;
        for (int i = 0; i < pager.count(); ++i) {
            captions << pager.tabText(i);
        }
        return captions.join(", ");
    }
    /// Books an item in with two intakes and a fault.
    void bookIn(const QString& serialNo) {
        showItem(1, {}, [&] {
            fillItem(serialNo);
            tick("grdIntakes", {"BOX", "BAG"});
            tick("grdFaults", {"NOPOWER"});
            user.press(Qt::Key_F10);
        });
    }
};
