// What the pattern of lists does with the facts of a list, shown on one that uses all of it.
#include "screens/ListScreen.h"
#include "data/DataUVEL.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "support/Desk.h"
#include "support/ScreenChecks.h"
#include "support/ScriptedUser.h"
#include "ui/FormBuilder.h"

#include <QAccessible>
#include <QLineEdit>
#include <QTest>
#include <gtest/gtest.h>

using velcro::test::Desk;

namespace {

ListFacts lineFacts(const ListFailure& failure) {
    return {.unit = "CRO555",
            .caption = "Lines",
            .failure = failure,
            .columns = {{"ItemNo", "Item"}, {"ModelNo", "Model"}},
            .hidden = {{"RecID"}},
            .search = {.terms = {"AND [ModelNo] LIKE '%"}, .cap = 4},
            .cap = 4,
            .statusCode = "CRO444"};
}

/// Lines below a form, beside another, with a button that needs a line and one that does not.
class LineList : public ListScreen
{
public:
    explicit LineList(const ListFailure& failure = {"555-001", "Lines: "})
        : ListScreen(lineFacts(failure), gData->Velmara, nullptr) {
        velcro::ui::FormBuilder(&above()).edit("edOrder", "Order", {.readOnly = true});
        velcro::ui::FormBuilder(&beside()).edit("edPicture", "Picture");
        setButtons({.options = {{.name = "btnOpen",
                                 .caption = "Open Line",
                                 .key = Qt::Key_Return,
                                 .handler = [this] { show(); },
                                 .needsRecord = true,
                                 .role = ButtonFacts::Role::Main},
                                {.name = "btnNew",
                                 .caption = "New Line",
                                 .key = Qt::Key_F4,
                                 .handler = [this] { ++added; }}},
                    .functions = {searchButton(), restoreButton()},
                    .closeName = "dxExit",
                    .closeCaption = "Exit"});
    }

    std::vector<int> opened, clicked;
    int added = 0;
    int reads = 0;
    QString changeWhileOpen;

protected:
    QStringList statementLines(const QString& xSQL) const override {
        return {"SELECT TOP(4) [RecID], [ItemNo], [ModelNo] FROM Lines", " WHERE [RecID] > 0", xSQL,
                " ORDER BY [ItemNo]"};
    }
    void afterRead() override {
        ++reads;
        findChild<QLineEdit*>("edOrder")->setText(currentText("ModelNo"));
    }
    void rowClicked() override { clicked.push_back(query().FieldByName("ItemNo").AsInteger()); }

private:
    void show() {
        showForCurrent(
            [this](int xRecID) {
                opened.push_back(xRecID);
                if (!changeWhileOpen.isEmpty()) {
                    Desk::onSuite(changeWhileOpen);
                }
            },
            "ItemNo");
    }
};

class ListScreenTest : public testing::Test
{
protected:
    ListScreenTest() {
        velcro::ui::setErrorDisplay([this](const QString& message) { raised << message; });
        Desk::onSuite("CREATE TABLE Lines ([RecID] INT IDENTITY, [ItemNo] INT, [ModelNo] "
                      "VARCHAR(20))");
        for (const char* line : {"2, 'Beta'", "1, 'Alfa'", "3, 'O''Hara'"}) {
            Desk::onSuite(QString("INSERT INTO Lines ([ItemNo], [ModelNo]) VALUES (%1)").arg(line));
        }
    }
    ~ListScreenTest() override { velcro::ui::setErrorDisplay({}); }

    void search(const QString& text) {
        user.press(Qt::Key_S, Qt::AltModifier);
        user.type(text);
        user.press(Qt::Key_Return);
    }

    Desk desk;
    ScriptedUser user;
    QStringList raised;
};

} // namespace

TEST_F(ListScreenTest, aListHasRoomAboveAndBesideItsGridAndItsOwnCode) {
    LineList list;
    list.resize(1024, 768);
    user.workIn(list, [&] {
        EXPECT_EQ(namelessControls(list) + clippedControls(list), QStringList());
        const auto place = [&](const char* name) {
            auto& control = user.find<QWidget>(name);
            return QRect(control.mapTo(&list, QPoint()), control.size());
        };
        const QRect grid = place("grdList");
        EXPECT_LT(place("edOrder").bottom(), grid.top());
        EXPECT_GT(place("edPicture").left(), grid.right());
        EXPECT_EQ(list.StatusBar1().panelText(0), "CRO444");
        EXPECT_EQ(list.reads, 1);
        EXPECT_EQ(user.sees("edOrder"), "Alfa") << "the user stands on the first row by then";
        EXPECT_EQ(user.sees("dxExit"), "Exit");
        EXPECT_THROW(user.column("RecID"), std::runtime_error) << "hidden";
        user.press(Qt::Key_Escape);
    });
}

TEST_F(ListScreenTest, aScreenReaderHearsTheRowAndNoHiddenColumn) {
    LineList list;
    user.workIn(list, [&] {
        auto* table = QAccessible::queryAccessibleInterface(&list.grid())->tableInterface();
        EXPECT_EQ(table->columnCount(), 2) << "the third one is hidden";
        EXPECT_EQ(table->columnDescription(1), "Model");
        EXPECT_EQ(table->rowDescription(2), "3");
        EXPECT_EQ(user.find<QWidget>("btnNew").accessibleDescription(), "Key F4");
        list.grid().setColumnHidden(0, true);
        EXPECT_EQ(table->cellAt(1, 0)->text(QAccessible::Name), "2, Model Beta");
        user.press(Qt::Key_Escape);
    });
}

TEST_F(ListScreenTest, aRowIsFoundAgainByWhatTheScreenLocatesBy) {
    LineList list;
    list.changeWhileOpen = "UPDATE Lines SET [ItemNo] = 4 - [ItemNo]";
    user.workIn(list, [&] {
        user.press(Qt::Key_End);
        user.press(Qt::Key_Return);
        EXPECT_EQ(list.opened, std::vector{3}) << "Enter presses the button that has it";
        EXPECT_EQ(user.current("Item"), "3") << "by number, which another row has now";
        EXPECT_EQ(user.current("Model"), "Alfa");
        auto& grid = list.grid();
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, {},
                          grid.visualRect(grid.model()->index(1, 0)).center());
        EXPECT_EQ(list.clicked, std::vector{2});
        user.press(Qt::Key_Escape);
    });
}

TEST_F(ListScreenTest, buttonsThatNeedARowAreGreyWithoutOne) {
    LineList list;
    user.workIn(list, [&] {
        EXPECT_TRUE(user.find<QWidget>("btnOpen").isEnabled());
        search("nobody");
        EXPECT_FALSE(user.find<QWidget>("btnOpen").isEnabled());
        user.press(Qt::Key_Return);
        user.press(Qt::Key_F4);
        EXPECT_EQ(list.opened.size(), 0U);
        EXPECT_EQ(list.added, 1) << "a key does what its button does";
        user.press(Qt::Key_R, Qt::ControlModifier);
        EXPECT_TRUE(user.find<QWidget>("btnOpen").isEnabled());
        user.press(Qt::Key_Escape);
    });
}

TEST_F(ListScreenTest, aFailedReadIsToldAsTheScreenStates) {
    using Then = ListFailure::Then;
    const struct
    {
        ListFailure failure;
        QString shown;
        int raised;
    } cases[] = {
        {{"1-1", "Lines: "}, "1-1|Lines: \rInvalid object name 'Lines'.", 1},
        {{"1-2", "Lines", Then::Raises, false}, "1-2|Lines", 1},
        {{"1-3", "Lines :-", Then::GoesOn}, "1-3|Lines :-\rInvalid object name 'Lines'.", 0},
        {{"1-4", "Reading LINES", Then::GoesOn, false}, "1-4|Reading LINES", 0},
    };
    Desk::onSuite("DROP TABLE Lines");
    for (const auto& each : cases) {
        desk.shown.clear();
        raised.clear();
        LineList list(each.failure);
        user.workIn(list, [&] {
            EXPECT_EQ(list.reads, 0) << "nothing was read";
            user.press(Qt::Key_Escape);
        });
        EXPECT_EQ(desk.shown.join("").toStdString(), each.shown.toStdString());
        EXPECT_EQ(raised.size(), each.raised) << each.shown.toStdString();
    }
}

TEST_F(ListScreenTest, aSearchTextNeverLeavesItsLiteral) {
    const struct
    {
        QString text;
        QStringList models; // none: not sent
    } cases[] = {
        {"O''H", {"O'Hara"}},
        {"''", {"O'Hara"}},
        {"''''", {}},
        {"%' OR 1=1 --", {}},
        {"'; DROP TABLE Lines --", {}},
        {"x' UNION SELECT [RecID], 1, [UserPswd] FROM SYSUser --", {}},
        {"a'b'c", {}},
        {"'''", {}},
        {"\\'", {}},
        {"[a]-- ; DROP TABLE Lines", {}},
    };
    for (const auto& [text, models] : cases) {
        const bool sent = text.count('\'') % 2 == 0 && !QString(text).remove("''").contains('\'');
        desk.shown.clear();
        LineList list;
        user.workIn(list, [&] {
            search(text);
            EXPECT_EQ(user.column("Model"), models) << text.toStdString();
            user.press(Qt::Key_R, Qt::ControlModifier);
            EXPECT_EQ(user.column("Model").size(), 3) << "the list can be used on";
            user.press(Qt::Key_Escape);
        });
        const QString answer = "555-001|Lines: \rUnclosed quotation mark after the character "
                               "string '" +
                               text + "'.";
        EXPECT_EQ(desk.shown.join("").toStdString(), sent ? "" : answer.toStdString());
    }
}

TEST_F(ListScreenTest, theListTellsWhatItShows) {
    LineList list;
    user.workIn(list, [&] {
        const auto shows = [&] { return user.sees("lblRowCount").toStdString(); };
        EXPECT_EQ(shows(), "3 rows");
        search("a");
        EXPECT_EQ(shows(), "3 rows for 'a'");
        search("alf");
        EXPECT_EQ(shows(), "1 of 3 rows for 'alf'");
        search("nobody");
        EXPECT_EQ(shows(), "0 of 3 rows for 'nobody'");
        Desk::onSuite("INSERT INTO Lines ([ItemNo], [ModelNo]) SELECT 7, [ModelNo] FROM Lines");
        user.press(Qt::Key_R, Qt::ControlModifier);
        EXPECT_EQ(shows(), "the first 4 rows");
        search("a");
        EXPECT_EQ(shows(), "the first 4 rows for 'a'");
        search("alf");
        EXPECT_EQ(shows(), "2 rows for 'alf'") << "of nobody knows how many";
        user.press(Qt::Key_Escape);
    });
}
