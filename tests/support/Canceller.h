// Somebody who cancels whatever long work shows that it can be.
#pragma once

#include <QApplication>
#include <QPushButton>
#include <QTimer>

namespace velcro::test {

class Canceller
{
public:
    Canceller() {
        QObject::connect(&timer_, &QTimer::timeout, [] {
            for (auto* form : QApplication::topLevelWidgets()) {
                if (auto* cancel = form->isVisible() ? form->findChild<QPushButton*>() : nullptr) {
                    cancel->click();
                }
            }
        });
        timer_.start(20);
    }

private:
    QTimer timer_;
};

} // namespace velcro::test
