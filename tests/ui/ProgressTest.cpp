#include "ui/Progress.h"

#include "support/ScriptedUser.h"
#include "support/TypedAhead.h"
#include "ui/Handler.h"
#include "ui/WaitNotice.h"

#include <QApplication>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

using namespace velcro::test;
using namespace velcro::ui;

namespace {

/// A screen with one edit, on screen and active.
struct ProgressTest : testing::Test
{
    ProgressTest() {
        (new QVBoxLayout(&screen))->addWidget(edit);
        screen.resize(800, 600);
        screen.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&screen));
    }

    QWidget screen;
    QLineEdit* edit = new QLineEdit;
};

/// Works until the form is up.
int workUntilShown(Progress& progress) {
    int done = 0;
    while (!progress.isShown()) {
        ++done;
        progress.step(done, "row " + QString::number(done));
    }
    return done;
}

} // namespace

TEST_F(ProgressTest, shortWorkShowsABusyCursorOnly) {
    {
        Progress progress("Printing", 3);
        ASSERT_NE(QApplication::overrideCursor(), nullptr);
        for (int i = 1; i <= 3; ++i) {
            EXPECT_TRUE(progress.step(i));
        }
        EXPECT_FALSE(progress.isShown());
    }
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(ProgressTest, longWorkShowsHowFarItIsAndKeepsTheScreenBehindItUntouched) {
    {
        Progress progress("Printing", 1'000'000'000);
        queueText("ab");
        const int done = workUntilShown(progress);
        auto* form = QApplication::activeModalWidget();
        ASSERT_NE(form, nullptr);
        EXPECT_EQ(form->windowTitle(), "Printing");
        EXPECT_EQ(form->findChild<QProgressBar*>("gauge")->value(), done);
        EXPECT_EQ(form->findChild<QLabel*>("lblWhat")->text(), "row " + QString::number(done));
        EXPECT_EQ(edit->text(), "");
    }
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    takeQueue();
    EXPECT_EQ(edit->text(), "ab") << "what was typed meanwhile is the screen's";
}

TEST_F(ProgressTest, escapeOrTheButtonCancels) {
    for (const bool byKey : {true, false}) {
        Progress progress("Printing", 0);
        int done = workUntilShown(progress);
        auto* form = QApplication::activeModalWidget();
        ASSERT_NE(form, nullptr);
        if (byKey) {
            queueKey(Qt::Key_Escape);
        } else {
            queueClick(*form->findChild<QPushButton*>("btnCancel"));
        }
        while (progress.step(++done)) {
        }
        EXPECT_TRUE(progress.isCancelled());
        EXPECT_FALSE(progress.isShown());
        EXPECT_TRUE(screen.isVisible());
    }
    takeQueue();
}

TEST_F(ProgressTest, aUserOfTheScreensMeetsItAsAnyForm) {
    ScriptedUser user;
    user.expectForm("Export", [&user] { user.press(Qt::Key_Escape); });
    Progress progress("Export", 0);
    for (int done = 0; progress.step(++done);) {
    }
    EXPECT_TRUE(progress.isCancelled());
}

TEST_F(ProgressTest, aLongWaitIsToldAndCanBeGivenUp) {
    WaitNotice notice;
    const auto told = [this] { return screen.findChild<QFrame*>("WaitNotice"); };
    queueKey(Qt::Key_Escape);
    EXPECT_TRUE(notice.goOn("Waiting for the server.", 100)) << "a key from before was not for it";
    EXPECT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(told(), nullptr);
    EXPECT_TRUE(notice.goOn("Waiting for the server.", WaitNotice::patience));
    ASSERT_NE(told(), nullptr);
    EXPECT_TRUE(told()->isVisible());
    EXPECT_EQ(told()->findChild<QLabel*>()->text(), "Waiting for the server.");
    EXPECT_TRUE(screen.rect().contains(told()->geometry()));
    queueText("c");
    EXPECT_TRUE(notice.goOn("Waiting for the server.", 700));
    queueClick(*told()->findChild<QPushButton*>());
    EXPECT_FALSE(notice.goOn("Waiting for the server.", 800));
    notice.over();
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_FALSE(told() != nullptr && told()->isVisible());
    EXPECT_TRUE(notice.goOn("Waiting for the server.", 10)) << "the next wait begins anew";
    notice.over();
    EXPECT_EQ(edit->text(), "");
    takeQueue();
    EXPECT_EQ(edit->text(), "c");
}
