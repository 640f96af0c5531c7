#include "application/ColorText.h"

#include "data/Errors.h"

namespace {

QColor fromNumber(uint number) {
    return QColor(int(number & 0xff), int(number >> 8 & 0xff), int(number >> 16 & 0xff));
}

} // namespace

QColor sfg_StringToColor(const QString& text) {
    const QString plain = text.trimmed();
    bool isNumber = false;
    const uint number = plain.startsWith(QLatin1Char('$')) ? plain.mid(1).toUInt(&isNumber, 16)
                                                           : plain.toUInt(&isNumber);
    if (isNumber) {
        return fromNumber(number);
    }
    const bool prefixed = plain.startsWith(QLatin1String("cl"), Qt::CaseInsensitive);
    const QColor whole(plain);
    const QColor color = whole.isValid() || !prefixed ? whole : QColor(plain.mid(2));
    if (!color.isValid()) {
        throw ConversionError(QStringLiteral("'%1' is not a valid colour").arg(text));
    }
    return color;
}
