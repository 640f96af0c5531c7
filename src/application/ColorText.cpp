#include "application/ColorText.h"

#include "data/Errors.h"

#include <QGuiApplication>
#include <QPalette>

#include <iterator>
#include <optional>

namespace {

/// The seat's own colours in their order; a number with FF in its highest byte, or a name, means one.
struct SystemColor
{
    const char* name;
    QPalette::ColorRole role;
};

constexpr SystemColor systemColors[] = {
    {"ScrollBar", QPalette::Mid},
    {"Background", QPalette::Window},
    {"ActiveCaption", QPalette::Highlight},
    {"InactiveCaption", QPalette::Mid},
    {"Menu", QPalette::Button},
    {"Window", QPalette::Base},
    {"WindowFrame", QPalette::Shadow},
    {"MenuText", QPalette::ButtonText},
    {"WindowText", QPalette::Text},
    {"CaptionText", QPalette::HighlightedText},
    {"ActiveBorder", QPalette::Button},
    {"InactiveBorder", QPalette::Button},
    {"AppWorkSpace", QPalette::Dark},
    {"Highlight", QPalette::Highlight},
    {"HighlightText", QPalette::HighlightedText},
    {"BtnFace", QPalette::Button},
    {"BtnShadow", QPalette::Dark},
    {"GrayText", QPalette::PlaceholderText},
    {"BtnText", QPalette::ButtonText},
    {"InactiveCaptionText", QPalette::WindowText},
    {"BtnHighlight", QPalette::Light},
    {"3DDkShadow", QPalette::Shadow},
    {"3DLight", QPalette::Midlight},
    {"InfoText", QPalette::ToolTipText},
    {"InfoBk", QPalette::ToolTipBase},
    {"HotLight", QPalette::Link},
    {"GradientActiveCaption", QPalette::Highlight},
    {"GradientInactiveCaption", QPalette::Mid},
    {"MenuHighlight", QPalette::Highlight},
    {"MenuBar", QPalette::Button},
};

/// Names that are no names of the web, or mean another colour there.
constexpr struct
{
    const char* name;
    QRgb rgb;
} ownNames[] = {
    {"LtGray", 0xc0c0c0},     {"DkGray", 0x808080},  {"MedGray", 0xa0a0a4}, {"Cream", 0xfffbf0},
    {"MoneyGreen", 0xc0dcc0}, {"SkyBlue", 0xa6caf0}, {"Default", 0x000000}, {"None", 0xffffff},
};

bool same(const QString& text, const char* name) {
    return text.compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
}

QColor systemColor(std::size_t index) {
    return index < std::size(systemColors)
               ? QGuiApplication::palette().color(systemColors[index].role)
               : QColor(Qt::black);
}

QColor fromNumber(quint32 number) {
    if (number >> 24 == 0xff) {
        return systemColor(number & 0xff);
    }
    return QColor(int(number & 0xff), int(number >> 8 & 0xff), int(number >> 16 & 0xff));
}

/// Decimal with or without a sign, or hexadecimal behind "$" or "0x".
std::optional<quint32> numberOf(const QString& text) {
    bool ok = false;
    qint64 number = 0;
    if (text.startsWith(QLatin1Char('$'))) {
        number = text.mid(1).toLongLong(&ok, 16);
    } else if (text.startsWith(QLatin1String("0x"), Qt::CaseInsensitive)) {
        number = text.mid(2).toLongLong(&ok, 16);
    } else {
        number = text.toLongLong(&ok);
    }
    if (!ok || number < std::numeric_limits<qint32>::min() ||
        number > std::numeric_limits<quint32>::max()) {
        return std::nullopt;
    }
    return quint32(number);
}

QColor fromPrefixedName(const QString& name) {
    for (const auto& own : ownNames) {
        if (same(name, own.name)) {
            return QColor(own.rgb);
        }
    }
    for (std::size_t index = 0; index < std::size(systemColors); ++index) {
        if (same(name, systemColors[index].name)) {
            return systemColor(index);
        }
    }
    return QColor(name);
}

} // namespace

QColor sfg_StringToColor(const QString& text) {
    const QString plain = text.trimmed();
    if (const auto number = numberOf(plain)) {
        return fromNumber(*number);
    }
    const bool prefixed = plain.startsWith(QLatin1String("cl"), Qt::CaseInsensitive);
    const QColor color = prefixed ? fromPrefixedName(plain.mid(2)) : QColor(plain);
    if (!color.isValid()) {
        throw ConversionError(QStringLiteral("'%1' is not a valid colour").arg(text));
    }
    return color;
}
