// A screen of a seat that waits for somebody. Sees when the wait is told, and types then.
#pragma once

#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <functional>

class WaitingScreen : public testing::Test, public QObject
{
protected:
    WaitingScreen() {
        (new QVBoxLayout(&screen))->addWidget(edit);
        screen.resize(800, 600);
        screen.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&screen));
        qApp->installEventFilter(this);
    }
    ~WaitingScreen() override { qApp->removeEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched->objectName() == "WaitNotice" && event->type() == QEvent::Show) {
            told << static_cast<QWidget*>(watched)->findChild<QLabel*>()->text();
            typeWhenTold();
        }
        painted = painted || (event->type() == QEvent::Paint && watched == &screen);
        return false;
    }

    QWidget screen;
    QLineEdit* edit = new QLineEdit;
    QStringList told;
    bool painted = false;
    std::function<void()> typeWhenTold = [] {};
};
