// The one gate that every modal form and message box passes, so that a scripted user can stand
// behind it and answer.
#pragma once

#include <QDialog>

#include <functional>

namespace velcro::ui {

/// Shows the form modally and returns its result code. The caller owns the form.
int runModal(QDialog& dialog);

/// Shows a form over work that goes on below it and pumps; it has no loop of its own.
void showOverWork(QDialog& dialog);
void hideOverWork(QDialog& dialog);

/// Called with each modal form once it is on screen, from its own event loop; an empty one ends it.
using ModalWatcher = std::function<void(QDialog&)>;
void setModalWatcher(ModalWatcher watcher);

} // namespace velcro::ui
