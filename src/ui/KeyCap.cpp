#include "ui/KeyCap.h"

#include "ui/DrawnIcon.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace velcro::ui {

namespace {

constexpr KeyCap caps[] = {
    {"F1", "F1", 51},
    {"F2", "F2", 52},
    {"F3", "F3", 53},
    {"F4", "F4", 54},
    {"F5", "F5", 55},
    {"F6", "F6", 56},
    {"F7", "F7", 57},
    {"F8", "F8", 58},
    {"F9", "F9", 59},
    {"F10", "F10", 60},
    {"F11", "F11", 61},
    {"F12", "F12", 62},
    {"INS", "Ins", 5},
    {"ENTER", "Enter", 6},
    {"DEL", "Del", 7},
    {"ESC", "Esc", 8},
    {"Y", "Y", 90},
    {"N", "N", 79},
    {"?", "?", 92},
    {"CTRL-P", "Ctrl P", 24},
    {"CTRL-L", "Ctrl L", 20},
    {"CTRL-N", "Ctrl N", 22},
    {"CTRL-S", "Ctrl S", 27},
    {"CTRL-H", "Ctrl H", 16},
    {"CTRL-R", "Ctrl R", 26},
    {"CTRL-K", "Ctrl K", 19},
    {"CTRL-U", "Ctrl U", 29},
    {"CTRL-I", "Ctrl I", 17},
    {"CTRL-ENTER", "Ctrl ↵", 35},
    {"ALT-1", "Alt 1", 36},
    {"ALT-2", "Alt 2", 37},
    {"ALT-3", "Alt 3", 38},
    {"ALT-4", "Alt 4", 39},
    {"ALT-5", "Alt 5", 40},
    {"ALT-6", "Alt 6", 41},
    {"ALT-7", "Alt 7", 42},
    {"ALT-8", "Alt 8", 43},
    {"ALT-9", "Alt 9", 44},
    {"CTRL-A", "Ctrl A", 9},
    {"CTRL-B", "Ctrl B", 10},
    {"CTRL-C", "Ctrl C", 11},
    {"CTRL-D", "Ctrl D", 12},
    {"CTRL-E", "Ctrl E", 13},
    {"CTRL-F", "Ctrl F", 14},
    {"CTRL-G", "Ctrl G", 15},
    {"CTRL-J", "Ctrl J", 18},
    {"CTRL-M", "Ctrl M", 21},
    {"CTRL-O", "Ctrl O", 23},
    {"CTRL-Q", "Ctrl Q", 25},
    {"CTRL-T", "Ctrl T", 28},
    {"CTRL-V", "Ctrl V", 30},
    {"CTRL-W", "Ctrl W", 31},
    {"CTRL-X", "Ctrl X", 32},
    {"CTRL-Y", "Ctrl Y", 33},
    {"CTRL-Z", "Ctrl Z", 34},
    {"A", "A", 66},
    {"B", "B", 67},
    {"C", "C", 68},
    {"D", "D", 69},
    {"E", "E", 70},
    {"F", "F", 71},
    {"G", "G", 72},
    {"H", "H", 73},
    {"I", "I", 74},
    {"J", "J", 75},
    {"K", "K", 76},
    {"L", "L", 77},
    {"M", "M", 78},
    {"O", "O", 80},
    {"P", "P", 81},
    {"Q", "Q", 82},
    {"R", "R", 83},
    {"S", "S", 84},
    {"T", "T", 85},
    {"U", "U", 86},
    {"V", "V", 87},
    {"W", "W", 88},
    {"X", "X", 89},
    {"Z", "Z", 91},
    {"TAB", "Tab", 45},
    {"SPACE", "Space", 46},
    {"PGUP", "PgUp", 47},
    {"PGDN", "PgDn", 48},
    {"HOME", "Home", 49},
    {"END", "End", 50},
    {"CTRL-INS", "Ctrl Ins", 63},
    {"CTRL-DEL", "Ctrl Del", 64},
    {"ALT-F12", "Alt F12", 65},
    {"CTRL-F1", "Ctrl F1", 93},
    {"CTRL-F2", "Ctrl F2", 94},
    {"CTRL-F3", "Ctrl F3", 95},
    {"CTRL-F4", "Ctrl F4", 96},
    {"CTRL-F5", "Ctrl F5", 97},
    {"CTRL-F6", "Ctrl F6", 98},
    {"CTRL-F7", "Ctrl F7", 99},
    {"CTRL-F8", "Ctrl F8", 100},
    {"CTRL-F9", "Ctrl F9", 101},
    {"CTRL-F10", "Ctrl F10", 102},
    {"CTRL-F11", "Ctrl F11", 103},
    {"CTRL-F12", "Ctrl F12", 104},
};

QFont legendFont(qreal capHeight) {
    QFont font(QStringLiteral("Open Sans"));
    font.setPixelSize(std::max(7, qRound(capHeight * 0.5)));
    font.setWeight(QFont::DemiBold);
    return font;
}

void paintCap(QPainter& painter, const QRectF& rect, const QString& legend, KeyCapStyle style,
              bool enabled) {
    const bool blue = style == KeyCapStyle::Blue;
    QColor face(blue ? 0x3a5ea4 : 0xf0f2f5);
    QColor ink(blue ? 0xffffff : 0x24262b);
    if (!enabled) {
        face = QColor(0x9a9ea6);
        ink = QColor(0x2f3338);
    }
    const qreal edge = std::max<qreal>(1, rect.height() / 16);
    const QRectF body = rect.adjusted(edge / 2, edge / 2, -edge / 2, -edge / 2);
    const qreal radius = body.height() / 5;
    painter.setPen(QPen(face.darker(150), edge));
    painter.setBrush(face.darker(150));
    painter.drawRoundedRect(body, radius, radius);
    const QRectF top = body.adjusted(0, 0, 0, -2 * edge);
    painter.setBrush(face);
    painter.drawRoundedRect(top, radius, radius);
    painter.setPen(ink);
    painter.setFont(legendFont(rect.height()));
    painter.drawText(top, Qt::AlignCenter, legend);
}

/// The cap of this legend in the middle of the rectangle, as large as fits.
QRectF capRect(const QRectF& rect, const QString& legend) {
    const auto widthAt = [&legend](qreal height) {
        const QFontMetricsF metrics(legendFont(height));
        return std::max(height, metrics.horizontalAdvance(legend) + height * 0.55);
    };
    qreal height = rect.height();
    while (height > 9 && widthAt(height) > rect.width()) {
        height -= 1;
    }
    const qreal width = widthAt(height);
    return {rect.center().x() - width / 2, rect.center().y() - height / 2, width, height};
}

} // namespace

std::span<const KeyCap> keyCaps() {
    return caps;
}

const KeyCap* findKeyCap(const QString& key) {
    const auto found = std::ranges::find_if(caps, [&key](const KeyCap& cap) {
        return key.compare(QLatin1String(cap.key), Qt::CaseInsensitive) == 0;
    });
    return found == std::end(caps) ? nullptr : &*found;
}

QString keyCapName(const QKeySequence& key) {
    return key.toString(QKeySequence::PortableText)
        .toUpper()
        .replace(QLatin1Char('+'), QLatin1Char('-'))
        .replace(QLatin1String("RETURN"), QLatin1String("ENTER"))
        .replace(QLatin1String("PGDOWN"), QLatin1String("PGDN"));
}

QIcon keyCapIcon(const QString& key, KeyCapStyle style) {
    const KeyCap* cap = findKeyCap(key);
    if (cap == nullptr) {
        return {};
    }
    const QString legend = QString::fromUtf8(cap->legend);
    return drawnIcon([legend, style](QPainter& painter, const QRectF& rect, QIcon::Mode mode) {
        paintCap(painter, capRect(rect, legend), legend, style, mode != QIcon::Disabled);
    });
}

QSize keyCapSize(const QString& key, int height) {
    const KeyCap* cap = findKeyCap(key);
    if (cap == nullptr) {
        return {};
    }
    const QRectF room(0, 0, 100 * height, height);
    return capRect(room, QString::fromUtf8(cap->legend)).size().toSize();
}

} // namespace velcro::ui
