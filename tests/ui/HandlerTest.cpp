#include "ui/Handler.h"

#include "support/ScriptedUser.h"
#include "ui/Modal.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <gtest/gtest.h>

#include <stdexcept>

using namespace velcro::ui;

namespace {

struct HandlerTest : testing::Test
{
    HandlerTest() {
        setErrorDisplay([this](const QString& text) { shown << text; });
    }
    ~HandlerTest() override { setErrorDisplay({}); }
    QStringList shown;
};

TEST_F(HandlerTest, AnExceptionGoesToTheErrorDisplayAndTheProgramGoesOn) {
    QPushButton button;
    int clicks = 0;
    connectHandler(&button, &QPushButton::clicked, &button, [&clicks] {
        if (++clicks == 1) {
            throw std::runtime_error("Größe");
        }
        if (clicks == 2) {
            throw 7; // what is no std::exception must not end the program either
        }
    });
    button.click();
    button.click();
    button.click();
    EXPECT_EQ(clicks, 3);
    ASSERT_EQ(shown.size(), 2);
    EXPECT_EQ(shown[0], "Größe");
    EXPECT_FALSE(shown[1].isEmpty());
}

TEST_F(HandlerTest, HandlersTakeTheSignalsArgumentsOrNone) {
    QLineEdit edit;
    QString seen;
    int calls = 0;
    connectHandler(&edit, &QLineEdit::textChanged, &edit,
                   [&seen](const QString& text) { seen = text; });
    connectHandler(&edit, &QLineEdit::textChanged, &edit, [&calls] { ++calls; });
    connectHandler(&edit, &QLineEdit::textChanged, &edit, &QLineEdit::selectAll);
    edit.setText("abc");
    EXPECT_EQ(seen, "abc");
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(edit.selectedText(), "abc");
}

TEST_F(HandlerTest, WithoutADisplayAMessageBoxShowsIt) {
    setErrorDisplay({});
    ScriptedUser user;
    QString text;
    user.expectForm(QCoreApplication::applicationName(), [&] {
        text = user.sees("lblText");
        user.press(Qt::Key_Return);
    });
    guarded([] { throw std::runtime_error("disk full"); });
    EXPECT_EQ(text, "disk full");
}

} // namespace
