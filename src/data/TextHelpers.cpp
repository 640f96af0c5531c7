#include "data/TextHelpers.h"

#include "data/Errors.h"

#include <algorithm>

QString sfg_PADR(const QString& xString, QChar xChar, int xLength) {
    return xString.leftJustified(xLength, xChar);
}

QString sfg_PADL(const QString& xString, QChar xChar, int xLength) {
    return xString.rightJustified(xLength, xChar);
}

QString sfg_StripCode(const QString& xString, QChar xCheckChar, const QString& xKeepSpace) {
    QString code = xString.section(xCheckChar, 0, 0).trimmed();
    if (xKeepSpace == QLatin1String("N")) {
        code.remove(QLatin1Char(' '));
    }
    return code;
}

QString sfg_StripCodeSpace(const QString& xString) {
    return xString.section(QLatin1Char(' '), 0, 0);
}

double sfg_IsNumeric(const QString& xString) {
    const auto mayStandInNumber = [](QChar c) {
        return (c >= QLatin1Char('0') && c <= QLatin1Char('9')) || c == QLatin1Char('.') ||
               c == QLatin1Char('-');
    };
    if (xString.trimmed().isEmpty() ||
        !std::all_of(xString.begin(), xString.end(), mayStandInNumber)) {
        return 0;
    }
    return StrToFloat(xString);
}
