#include "ui/Modal.h"

#include "ui/Events.h"
#include "ui/ScreenFit.h"

#include <QApplication>
#include <QPointer>
#include <QTimer>

#include <utility>

namespace velcro::ui {

namespace {

ModalWatcher modalWatcher;

/// A form whose show event asks something first is met after that question, and after the keys that
/// were typed ahead for it.
void watch(QDialog& dialog) {
    QTimer::singleShot(0, &dialog, [&dialog] {
        if (!modalWatcher) {
            return;
        }
        if (QApplication::activeModalWidget() == &dialog && !inputIsQueued()) {
            const ModalInput input(dialog);
            modalWatcher(dialog);
        } else {
            watch(dialog);
        }
    });
}

QWidget* mainWindow() {
    for (auto* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->windowType() == Qt::Window) {
            return window;
        }
    }
    return nullptr;
}

// Milliseconds that a window system may take to hand over the keyboard; one that does not, because
// the user is in another program, costs no more.
constexpr int untilKeyboard = 500;

/// A window's short cuts work from here on. A popup leaves the keyboard with its window.
bool hasKeyboard(const QWidget& window) {
    return window.isActiveWindow() || window.windowType() == Qt::Popup ||
           window.testAttribute(Qt::WA_DontShowOnScreen);
}

/// Puts the form on screen and waits until keys reach it; it may close itself meanwhile.
void bringUp(QDialog& dialog) {
    if (modalWatcher) {
        watch(dialog);
    }
    dialog.setModal(true);
    keepOnScreen(dialog);
    dialog.show();
    pumpUntil([&dialog] { return !dialog.isVisible() || hasKeyboard(dialog); }, untilKeyboard);
    dropTaps();
}

/// Not every system gives the keyboard back to the window underneath.
void activateBelow() {
    auto* modal = QApplication::activeModalWidget();
    QPointer<QWidget> below = modal != nullptr ? modal : mainWindow();
    if (below != nullptr && below->isVisible()) {
        below->activateWindow();
        pumpUntil([&below] { return below.isNull() || !below->isVisible() || hasKeyboard(*below); },
                  untilKeyboard);
    }
    dropTaps();
}

} // namespace

int runModal(QDialog& dialog) {
    int result = QDialog::Rejected;
    {
        const ModalInput input(dialog);
        bringUp(dialog);
        result = dialog.isVisible() ? dialog.exec() : dialog.result();
    }
    activateBelow();
    return result;
}

void showOverWork(QDialog& dialog) {
    bringUp(dialog);
}

void hideOverWork(QDialog& dialog) {
    dialog.hide();
    activateBelow();
}

void setModalWatcher(ModalWatcher watcher) {
    modalWatcher = std::move(watcher);
}

} // namespace velcro::ui
