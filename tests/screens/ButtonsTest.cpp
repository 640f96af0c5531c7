#include "screens/Buttons.h"

#include <QDialog>
#include <QTest>
#include <gtest/gtest.h>

using velcro::ui::KeyButton;

TEST(ButtonsTest, theCapIsDrawnFromTheKeyAndTheKeyPressesTheButton) {
    const struct
    {
        ButtonFacts facts;
        QString cap;
        std::vector<QKeyCombination> works, doesNothing;
    } cases[] = {
        {{.key = Qt::Key_Insert}, "INS", {Qt::Key_Insert}, {Qt::Key_F10}},
        {{.key = Qt::Key_Delete}, "DEL", {Qt::Key_Delete}, {}},
        {{.key = Qt::Key_Escape}, "ESC", {Qt::Key_Escape}, {}},
        {{.key = Qt::Key_F12}, "F12", {Qt::Key_F12}, {}},
        {{.key = Qt::CTRL | Qt::Key_P}, "CTRL-P", {Qt::CTRL | Qt::Key_P}, {Qt::Key_P}},
        {{.key = Qt::Key_Return}, "ENTER", {Qt::Key_Return, Qt::Key_Enter}, {}},
        {{.key = Qt::CTRL | Qt::Key_Return},
         "CTRL-ENTER",
         {Qt::CTRL | Qt::Key_Return, Qt::CTRL | Qt::Key_Enter},
         {Qt::Key_Return}},
        {{.key = Qt::CTRL | Qt::Key_R, .alsoKeys = {Qt::Key_F12}},
         "CTRL-R",
         {Qt::CTRL | Qt::Key_R, Qt::Key_F12},
         {}},
        {{.cap = "F10"}, "F10", {}, {Qt::Key_F10}},
        {{.key = Qt::Key_F4, .cap = ""}, "", {Qt::Key_F4}, {}},
        {{.caption = "&Search"}, "", {Qt::ALT | Qt::Key_S}, {Qt::Key_S}},
        {{}, "", {}, {Qt::Key_F10}},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.cap.toStdString() + each.facts.caption.toStdString());
        QDialog form;
        int pressed = 0;
        auto facts = each.facts;
        facts.handler = [&pressed] { ++pressed; };
        auto* button = makeButton(form, facts);
        EXPECT_EQ(button->keyCap(), each.cap);
        form.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
        for (const auto key : each.doesNothing) {
            QTest::keyClick(&form, key.key(), key.keyboardModifiers());
        }
        EXPECT_EQ(pressed, 0);
        for (const auto key : each.works) {
            QTest::keyClick(&form, key.key(), key.keyboardModifiers());
        }
        EXPECT_EQ(pressed, int(each.works.size()));
        button->setEnabled(false);
        for (const auto key : each.works) {
            QTest::keyClick(&form, key.key(), key.keyboardModifiers());
        }
        EXPECT_EQ(pressed, int(each.works.size())) << "a greyed button has no key";
    }
}

TEST(ButtonsTest, namesAreSpokenPlainlyAndNothingToDoIsGreyed) {
    QDialog form;
    const auto* button = makeButton(form, {.name = "btnAdd", .caption = "    &New*    Code"});
    EXPECT_EQ(button->objectName(), "btnAdd");
    EXPECT_EQ(button->accessibleName(), "New* Code");
    EXPECT_FALSE(button->isEnabled());
}
