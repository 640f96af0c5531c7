#include "support/ScriptedUser.h"

#include "support/ScreenChecks.h"

#include <QAbstractPrintDialog>
#include <QFileDialog>
#include <gtest/gtest.h>

ScriptedUser::~ScriptedUser() {
    missExpected();
}

void ScriptedUser::met(QDialog& form) {
    const bool isToolkits = qobject_cast<QFileDialog*>(&form) != nullptr ||
                            qobject_cast<QAbstractPrintDialog*>(&form) != nullptr;
    if (!isToolkits) {
        for (const auto& fault : unspokenControls(form)) {
            fail(form.windowTitle() + QStringLiteral(": ") + fault);
        }
    }
}

void ScriptedUser::fail(const QString& text) {
    ADD_FAILURE() << text.toStdString();
}
