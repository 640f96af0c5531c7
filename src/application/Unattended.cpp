#include "application/Unattended.h"

#include "data/Prompts.h"
#include "data/Session.h"
#include "ui/Handler.h"
#include "ui/Modal.h"

#include <QApplication>
#include <QPlainTextEdit>

#include <cstdio>

namespace {

void turnDown(QDialog& form) {
    QString text = form.windowTitle() + ": nobody is here to answer.";
    for (const auto* memo : form.findChildren<QPlainTextEdit*>()) {
        text += ' ' + memo->toPlainText().simplified();
    }
    text += ' ' + gErrorMsg.simplified(); // why it came up, where a log-in was refused before
    std::fprintf(stderr, "%s\n", qPrintable(text.trimmed()));
    form.done(QDialog::Rejected); // also a form that only its own buttons end
}

} // namespace

bool isUnattended() {
    const QString platform = QGuiApplication::platformName();
    return platform == QLatin1String("offscreen") || platform == QLatin1String("minimal");
}

void turnFormsDown() {
    gPrompts = {}; // whose empty hooks write to the error output
    velcro::ui::setErrorDisplay(
        [](const QString& message) { errorBox(QApplication::applicationName(), message); });
    velcro::ui::setModalWatcher(turnDown);
}
