#include "ui/Events.h"

#include "support/ScriptedUser.h"
#include "support/TypedAhead.h"
#include "ui/Handler.h"
#include "ui/Modal.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <gtest/gtest.h>

using namespace velcro::test;
using namespace velcro::ui;

namespace {

/// A window with an edit and a button, on screen and active.
struct Desktop
{
    Desktop() {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(&edit);
        layout->addWidget(&button);
        button.setFocusPolicy(Qt::NoFocus);
        edit.setFocus();
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    ~Desktop() {
        edit.setParent(nullptr);
        button.setParent(nullptr);
    }

    QWidget window;
    QLineEdit edit;
    QPushButton button;
};

/// A form that is half built while it pumps, as one that shows a message does.
class PumpingForm : public QDialog
{
public:
    explicit PumpingForm(const QString& title) {
        setWindowTitle(title);
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(&edit);
        connect(&edit, &QLineEdit::returnPressed, this, &QDialog::accept);
    }

    QLineEdit edit{this};

protected:
    void showEvent(QShowEvent* event) override {
        QDialog::showEvent(event);
        pumpEvents();
        edit.setFocus();
    }
};

} // namespace

TEST(EventsTest, inputWaitsInItsOrderWhileTheProgramPumps) {
    Desktop desktop;
    QStringList seen;
    connectHandler(&desktop.button, &QPushButton::clicked, &desktop.window,
                   [&] { seen << "click on " + desktop.edit.text(); });
    queueText("ab");
    queueClick(desktop.button);
    queueText("cd");
    pumpEvents();
    EXPECT_EQ(desktop.edit.text(), "");
    takeQueue();
    EXPECT_EQ(seen, QStringList("click on ab"));
    EXPECT_EQ(desktop.edit.text(), "abcd");
}

TEST(EventsTest, lettersOfAnInputMethodKeepTheirPlaceAmongKeys) {
    Desktop desktop;
    const auto commit = [&desktop] {
        QInputMethodEvent letter;
        letter.setCommitString(QStringLiteral("ß"));
        QApplication::sendEvent(&desktop.edit, &letter);
    };
    {
        const InputHold hold;
        queueText("a");
        takeQueue();
        commit();
        queueText("b");
        takeQueue();
        EXPECT_EQ(desktop.edit.text(), "");
    }
    takeQueue();
    EXPECT_EQ(desktop.edit.text(), "aßb");
    commit();
    EXPECT_EQ(desktop.edit.text(), "aßbß") << "with nothing held it goes straight in";
}

TEST(EventsTest, aScannerThatDoesNotPauseLosesNothing) {
    Desktop desktop;
    QStringList codes;
    connectHandler(&desktop.edit, &QLineEdit::returnPressed, &desktop.window, [&] {
        pumpEvents(); // a message in the status bar
        codes << desktop.edit.text();
        pumpEvents();
        desktop.edit.clear();
        pumpEvents();
    });
    queueText("6001\r6002\r6003\r");
    takeQueue();
    EXPECT_EQ(codes, (QStringList{"6001", "6002", "6003"}));
}

TEST(EventsTest, keysTypedAheadReachTheFormThatComesUp) {
    ScriptedUser user;
    Desktop desktop;
    QString typed;
    connectHandler(new QShortcut(Qt::Key_Insert, &desktop.window), &QShortcut::activated,
                   &desktop.window, [&] {
                       pumpEvents();
                       PumpingForm form("form");
                       runModal(form);
                       typed = form.edit.text();
                   });
    queueKey(Qt::Key_Insert);
    queueText("27");
    queueRepeat(Qt::Key_7, "7"); // so fast that Qt takes it for a key held down
    queueText("\rback");
    takeQueue();
    EXPECT_EQ(typed, "277");
    EXPECT_EQ(desktop.edit.text(), "back") << "after the form the keys are the window's again";
}

TEST(EventsTest, aKeyForAFormThatIsGoneWaitsForTheWindowBelowAndItsHandler) {
    ScriptedUser user;
    Desktop desktop;
    QStringList steps;
    connectHandler(
        new QShortcut(Qt::Key_Insert, &desktop.window), &QShortcut::activated, &desktop.window,
        [&] {
            steps << "begin";
            PumpingForm form("form");
            if (steps.size() == 1) {
                QTimer::singleShot(0, &form, [&form] {
                    for (const auto key : {Qt::Key_Escape, Qt::Key_Insert, Qt::Key_Escape}) {
                        queueKey(key, {}, &form);
                    }
                });
            }
            runModal(form);
            pumpEvents();
            steps << "end";
        });
    queueKey(Qt::Key_Insert);
    takeQueue();
    EXPECT_EQ(steps, (QStringList{"begin", "end", "begin", "end"}));
}

TEST(EventsTest, aTapOnAScreenThatHasGoneHitsNothingBelowIt) {
    Desktop desktop;
    QStringList seen;
    int opened = 0;
    connectHandler(&desktop.button, &QPushButton::clicked, &desktop.window,
                   [&] { seen << "click on " + desktop.edit.text(); });
    connectHandler(new QShortcut(Qt::Key_Insert, &desktop.window), &QShortcut::activated,
                   &desktop.window, [&] {
                       PumpingForm form("form");
                       auto* close = new QPushButton(&form);
                       form.layout()->addWidget(close);
                       QObject::connect(close, &QPushButton::clicked, &form, [&] {
                           ++opened;
                           pumpEvents(); // saves
                           form.accept();
                       });
                       queueClick(*close); // before anybody has seen it
                       QTimer::singleShot(400, &form, [&] {
                           EXPECT_EQ(opened, 0);
                           queueClick(*close);
                           queueClick(desktop.button); // where it lies, a hasty second time
                           queueText("x");
                       });
                       runModal(form);
                   });
    queueKey(Qt::Key_Insert);
    takeQueue();
    EXPECT_EQ(opened, 1);
    queueClick(desktop.button);
    takeQueue();
    EXPECT_EQ(seen, QStringList()) << "nobody has seen the window below yet";
    QTest::qWait(400);
    queueClick(desktop.button);
    takeQueue();
    EXPECT_EQ(seen, QStringList("click on x")) << "keys were kept, and now it is seen";
}

TEST(EventsTest, aRunningHandlerIsNotEnteredASecondTime) {
    Desktop desktop;
    int entered = 0;
    int inside = 0;
    connectHandler(&desktop.button, &QPushButton::clicked, &desktop.window, [&] {
        ++entered;
        if (++inside == 1) {
            desktop.button.click();
        }
        EXPECT_EQ(inside, 1);
        --inside;
    });
    desktop.button.click();
    EXPECT_EQ(entered, 1);
    desktop.button.click();
    EXPECT_EQ(entered, 2) << "it takes the next click once it is through";
}

TEST(EventsTest, whileAStatementWaitsTimersRestAndEscapeStops) {
    Desktop desktop;
    int ticks = 0;
    int stops = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&ticks] { ++ticks; });
    timer.start(0);
    QObject::connect(&desktop.button, &QPushButton::clicked, &desktop.window, [&] { ++stops; });
    {
        const StopWatch stop(desktop.button);
        queueText("ab");
        pumpPaint();
        EXPECT_EQ(stops, 0);
        queueKey(Qt::Key_Escape);
        queueText("c");
        pumpPaint();
        EXPECT_EQ(stops, 1);
        queueClick(desktop.button);
        pumpPaint();
        EXPECT_EQ(stops, 2);
    }
    EXPECT_EQ(ticks, 0);
    pumpEvents();
    EXPECT_EQ(ticks, 1);
    takeQueue();
    EXPECT_EQ(desktop.edit.text(), "abc");
}
