// A checklist under keys, a finger and a screen reader.
#include "ui/ChecklistGrid.h"

#include "support/FocusTold.h"
#include "support/ScreenChecks.h"
#include "ui/Theme.h"

#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <gtest/gtest.h>

using namespace velcro;
using namespace velcro::ui;

namespace {

class ChecklistGridTest : public testing::Test
{
protected:
    ChecklistGridTest()
        : list({{"Code", "Intake Code"}, {"Description"}, {"Notes"}, 8}) {
        sql::RowSetBuilder builder({{"Code", sql::ColumnType::Text},
                                    {"Description", sql::ColumnType::Text},
                                    {"Notes", sql::ColumnType::Text}});
        const char* const rows[][3] = {
            {"BAG", "Carry bag", ""}, {"BATT", "Battery", "charged"}, {"CORD", "Power cord", ""}};
        for (const auto& row : rows) {
            for (const char* cell : row) {
                builder.addBytes(cell);
            }
            builder.endRow();
        }
        list.setAccessibleName("Intakes");
        list.setRows(builder.take());
        list.resize(700, 300);
        list.show();
        list.activateWindow();
        QObject::connect(&list, &RowGrid::rowChosen, &list, [this] { ++chosen; });
        EXPECT_TRUE(QTest::qWaitForWindowActive(&list));
    }
    QString ticked() {
        QStringList entries;
        for (const auto& [code, note] : list.ticked()) {
            entries << code + "=" + note;
        }
        return entries.join(' ');
    }
    QRect cell(int row, int column) { return list.visualRect(list.model()->index(row, column)); }
    void tap(const QPoint& place) { QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place); }
    /// Letter by letter into what has the focus by then: the first one opens the note.
    void type(const QString& text) {
        for (const QChar letter : text) {
            QTest::keyClicks(QApplication::focusWidget(), letter);
        }
    }
    bool isTypedInto() const {
        const auto* edit = list.findChild<QLineEdit*>("edCell");
        return edit != nullptr && edit->isVisible();
    }
    void press(Qt::Key key) {
        QTest::keyClick(QApplication::focusWidget(), key);
        QApplication::processEvents();
    }

    ChecklistGrid list;
    int chosen = 0;
};

} // namespace

TEST_F(ChecklistGridTest, KeysTickAndTypeTheNotes) {
    list.setFocus();
    press(Qt::Key_Space);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Space);
    EXPECT_EQ(ticked(), "BAG= CORD=");
    press(Qt::Key_Space);
    EXPECT_EQ(ticked(), "BAG=");
    for (int i = 0; i < 3; ++i) {
        press(Qt::Key_Right);
    }
    press(Qt::Key_Space);
    type("worn plug");
    press(Qt::Key_Return);
    EXPECT_FALSE(isTypedInto());
    EXPECT_EQ(chosen, 0) << "Enter ends the edit and chooses nothing";
    EXPECT_EQ(ticked(), "BAG= CORD=worn plu") << "as long as the column holds";
    press(Qt::Key_Up);
    type("x");
    press(Qt::Key_Escape);
    press(Qt::Key_Space);
    EXPECT_EQ(ticked(), "BAG= BATT=charged CORD=worn plu") << "Esc leaves the note";
    type("low");
    EXPECT_EQ(ticked(), "BAG= BATT=low CORD=worn plu") << "what is being typed counts";
    press(Qt::Key_Left);
    type("z");
    EXPECT_FALSE(isTypedInto()) << "only the note is typed into";
}

TEST_F(ChecklistGridTest, KeysThatFollowTheEndOfANoteAtOnceAreNotItsLetters) {
    list.setFocus();
    list.locate("Code", "BAG");
    list.setCurrentIndex(list.model()->index(0, 3));
    for (const auto& [ends, modifiers] :
         {std::pair(Qt::Key_Return, Qt::NoModifier), std::pair(Qt::Key_Tab, Qt::ControlModifier)}) {
        type("worn");
        QTest::keyClick(QApplication::focusWidget(), ends, modifiers);
        EXPECT_EQ(QApplication::focusWidget(), &list) << ends;
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    }
    EXPECT_EQ(ticked(), "") << "ticked once and unticked once";
    EXPECT_EQ(list.rowModel().stored(0, 3), "worn");
}

TEST_F(ChecklistGridTest, AScreenReaderIsToldTheCellThatTheUserGoesTo) {
    list.setFocus();
    const auto told = velcro::test::focusTold([this] {
        press(Qt::Key_Down);
        press(Qt::Key_Right);
        press(Qt::Key_Right);
        press(Qt::Key_Down);
    });
    EXPECT_EQ(told.join('|'), "BATT not ticked|BATT|Battery|Power cord");
}

TEST_F(ChecklistGridTest, ATapAnywhereInTheTicksCellTicks) {
    tap(cell(0, 0).topLeft() + QPoint(2, 2));
    tap(cell(2, 0).bottomRight() - QPoint(2, 2));
    EXPECT_EQ(ticked(), "BAG= CORD=");
    tap(cell(0, 0).center());
    tap(cell(1, 1).center());
    EXPECT_EQ(ticked(), "CORD=") << "the other cells do not tick";
    tap(cell(1, 3).center());
    EXPECT_TRUE(QTest::qWaitFor([this] { return isTypedInto(); })) << "a second tap opens the note";
}

TEST_F(ChecklistGridTest, StoredCodesTickTheirFirstRowInAnyCase) {
    int told = 0;
    QObject::connect(&list, &ChecklistGrid::ticksChanged,
                     [&](int count) { told = 10 * told + count; });
    list.tick({"cord", "GONE", "Bag"});
    EXPECT_EQ(told, 2) << "once for all of them";
    list.tick({"CORD"});
    EXPECT_EQ(told, 2) << "nothing has changed";
    EXPECT_EQ(ticked(), "BAG= CORD=");
}

TEST_F(ChecklistGridTest, RowsAreAFingerHighAndATickIsSeenWithoutItsColour) {
    for (int column : {0, 1, 3}) {
        EXPECT_GE(cell(0, column).height(), touchHeight);
        EXPECT_GE(cell(0, column).width(), touchHeight);
    }
    const auto ink = [this] {
        const QImage seen = list.viewport()
                                ->grab(cell(1, 0).adjusted(2, 2, -2, -2))
                                .toImage()
                                .convertToFormat(QImage::Format_Grayscale8);
        int dark = 0;
        for (int y = 0; y < seen.height(); ++y) {
            for (int x = 0; x < seen.width(); ++x) {
                dark += qGray(seen.pixel(x, y)) < 60 ? 1 : 0;
            }
        }
        return dark;
    };
    for (const bool selected : {false, true}) {
        list.locate("Code", selected ? "BATT" : "BAG");
        list.rowModel().setTicked(1, 0, false);
        const int before = ink();
        list.tick({"BATT"});
        EXPECT_GT(ink(), before + 40) << selected;
    }
}

TEST_F(ChecklistGridTest, AScreenReaderHearsWhatIsTickedAndWhatCanBeTyped) {
    list.tick({"BATT"});
    auto* table = QAccessible::queryAccessibleInterface(&list)->tableInterface();
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->cellAt(1, 0)->text(QAccessible::Name), "BATT ticked");
    EXPECT_EQ(table->cellAt(0, 0)->text(QAccessible::Name), "BAG not ticked");
    EXPECT_EQ(table->cellAt(1, 2)->text(QAccessible::Name), "Battery");
    EXPECT_TRUE(table->cellAt(1, 0)->state().checked);
    EXPECT_EQ(table->cellAt(1, 3)->text(QAccessible::Description), "Notes. Can be typed over");
    EXPECT_TRUE(table->cellAt(1, 3)->state().editable);
    EXPECT_FALSE(table->cellAt(1, 2)->state().editable);
    table->cellAt(0, 0)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(ticked(), "BAG= BATT=charged");
    EXPECT_EQ(namelessControls(list), QStringList());
}

TEST_F(ChecklistGridTest, NotesGetTheRoom) {
    const QString note = "left strap torn, buckle missing, stain on the flap";
    list.rowModel().setStored(0, 3, note);
    EXPECT_GT(cell(0, 3).width(), list.fontMetrics().horizontalAdvance(note));
    list.tick({"CORD"});
    list.locate("Code", "BATT");
    keepPicture(list, "checklist");
}
