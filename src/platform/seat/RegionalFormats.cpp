#include "platform/seat/RegionalFormats.h"

#include <QLocale>

namespace velcro::seat {

void forceProgramFormats() {
    QLocale locale = QLocale::c();
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    QLocale::setDefault(locale);
}

QString groupedNumber(double value, int decimals) {
    QString text = QString::number(value, 'f', decimals);
    const auto point = text.indexOf(QLatin1Char('.'));
    const auto firstDigit = text.startsWith(QLatin1Char('-')) ? 1 : 0;
    for (auto place = (point < 0 ? text.size() : point) - 3; place > firstDigit; place -= 3) {
        text.insert(place, QLatin1Char(' '));
    }
    return text;
}

} // namespace velcro::seat
