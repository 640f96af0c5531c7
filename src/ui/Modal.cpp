#include "ui/Modal.h"

#include <QTimer>

#include <utility>

namespace velcro::ui {

namespace {
ModalWatcher modalWatcher;
}

int runModal(QDialog& dialog) {
    if (modalWatcher) {
        QTimer::singleShot(0, &dialog, [&dialog] { modalWatcher(dialog); });
    }
    return dialog.exec();
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
