#include "ui/Handler.h"

#include "ui/MessageBox.h"

#include <QApplication>

#include <exception>

namespace velcro::ui {

namespace {

void showInMessageBox(const QString& message) {
    showMessageBox(QApplication::activeWindow(), QApplication::applicationName(), message);
}

std::function<void(const QString&)> errorDisplay = showInMessageBox;

QString currentMessage() {
    try {
        throw;
    } catch (const std::exception& error) {
        return QString::fromUtf8(error.what());
    } catch (...) {
        return QStringLiteral("An unknown error occurred.");
    }
}

} // namespace

void setErrorDisplay(std::function<void(const QString&)> display) {
    errorDisplay = display ? std::move(display) : showInMessageBox;
}

void displayCurrentException() {
    // The display may replace itself; it must outlive its own call.
    const auto display = errorDisplay;
    display(currentMessage());
}

} // namespace velcro::ui
