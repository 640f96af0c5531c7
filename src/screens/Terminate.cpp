#include "screens/Terminate.h"

#include <QCoreApplication>

#include <utility>

namespace {
std::function<void()> closeMainForm;
}

void setMainFormClose(std::function<void()> close) {
    closeMainForm = std::move(close);
}

void terminateApplication() {
    if (closeMainForm) {
        closeMainForm();
    } else {
        QCoreApplication::exit(0);
    }
}
