#include "data/Errors.h"

#include <QLocale>

int StrToInt(const QString& text) {
    bool ok = false;
    const int number = text.trimmed().toInt(&ok);
    if (!ok) {
        throw ConversionError(QStringLiteral("'%1' is not a valid integer value").arg(text));
    }
    return number;
}

double StrToFloat(const QString& text) {
    bool ok = false;
    const double number = QLocale::c().toDouble(text.trimmed(), &ok);
    if (!ok) {
        throw ConversionError(QStringLiteral("'%1' is not a valid floating point value").arg(text));
    }
    return number;
}
