#include "data/Prompts.h"

#include "data/ErrorTexts.h"
#include "data/Errors.h"
#include "data/Session.h"

#include <cstdio>

namespace {

void toErrorOutput(const QString& title, QString text) {
    text.replace(QLatin1Char('\r'), QLatin1Char(' ')); // a terminal would begin its line again
    std::fprintf(stderr, "%s: %s\n", qPrintable(title), qPrintable(text));
}

} // namespace

void sfg_ErrorDlg(const QString& xErrorNo, const QString& xMessage, const QString& xPrgName,
                  const QString& xRoutine) {
    sfg_ResetParamFields(QString());
    QString message = xMessage;
    if (xErrorNo.startsWith(QLatin1Char('&'))) {
        const int number = StrToInt(xErrorNo.mid(1));
        if (sfg_GetErrorMessage(QString::number(number))) {
            message = gErrorMsg;
        }
    }
    if (gPrompts.errorForm) {
        gPrompts.errorForm(xErrorNo, message, xPrgName, xRoutine);
    } else {
        toErrorOutput(xErrorNo + QLatin1Char(' ') + xPrgName + QLatin1Char('.') + xRoutine,
                      message);
    }
    gErrorMsg.clear();
    gErrorComment.clear();
}

void errorBox(const QString& title, const QString& text) {
    if (gPrompts.errorBox) {
        gPrompts.errorBox(title, text);
    } else {
        toErrorOutput(title, text);
    }
}
