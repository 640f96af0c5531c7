#include "ui/Modal.h"

#include <QApplication>
#include <QTimer>

#include <utility>

namespace velcro::ui {

namespace {

ModalWatcher modalWatcher;

/// A form whose show event asks something first is met after that question, when it takes keys.
void watch(QDialog& dialog) {
    QTimer::singleShot(0, &dialog, [&dialog] {
        if (!modalWatcher) {
            return;
        }
        if (QApplication::activeModalWidget() == &dialog) {
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

/// Not every system gives the keyboard back to the window underneath.
void activateBelow() {
    auto* modal = QApplication::activeModalWidget();
    if (auto* below = modal != nullptr ? modal : mainWindow()) {
        below->activateWindow();
    }
}

} // namespace

int runModal(QDialog& dialog) {
    if (modalWatcher) {
        watch(dialog);
    }
    const int result = dialog.exec();
    activateBelow();
    return result;
}

void showMessageBox(QWidget* parent, QMessageBox::Icon icon, const QString& title,
                    const QString& text) {
    QMessageBox box(icon, title, text, QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    runModal(box);
}

void setModalWatcher(ModalWatcher watcher) {
    modalWatcher = std::move(watcher);
}

} // namespace velcro::ui
