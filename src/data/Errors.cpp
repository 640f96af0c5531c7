#include "data/Errors.h"

#include <QLocale>

#include <cmath>

int StrToInt(const QString& text) {
    bool ok = false;
    const int number = text.trimmed().toInt(&ok);
    if (!ok) {
        throw ConversionError(QStringLiteral("'%1' is not a valid integer value").arg(text));
    }
    return number;
}

// A separator between thousands would be the decimal sign of another country.
double StrToFloat(const QString& text) {
    QLocale plain = QLocale::c();
    plain.setNumberOptions(QLocale::RejectGroupSeparator);
    bool ok = false;
    const double number = plain.toDouble(text.trimmed(), &ok);
    if (!ok || !std::isfinite(number)) {
        throw ConversionError(QStringLiteral("'%1' is not a valid floating point value").arg(text));
    }
    return number;
}
