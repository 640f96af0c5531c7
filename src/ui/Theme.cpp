#include "ui/Theme.h"

#include "platform/seat/HighContrast.h"
#include "ui/Contrast.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QPalette>
#include <QStyleFactory>

#include <algorithm>
#include <optional>
#include <utility>

// Resources of a static library are linked in only where they are named.
static void initResources() {
    Q_INIT_RESOURCE(theme);
}

namespace velcro::ui {

namespace {

constexpr double basePointSize = 11;

QPalette calmPalette() {
    QPalette palette;
    const QColor text(0x1d, 0x2c, 0x36);
    const QColor faint(0x72, 0x80, 0x8a);
    palette.setColor(QPalette::Window, QColor(0xf4, 0xf7, 0xf9));
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xf0, 0xf5, 0xf8));
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::PlaceholderText, QColor(0x5f, 0x6d, 0x78));
    palette.setColor(QPalette::Button, QColor(0xe9, 0xef, 0xf3));
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::ToolTipBase, QColor(0xfd, 0xf8, 0xe6));
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::Highlight, QColor(0x1d, 0x6a, 0x96));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x14, 0x60, 0x8a));
    palette.setColor(QPalette::Mid, QColor(0xc6, 0xd1, 0xd9));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, faint);
    }
    return palette;
}

bool isStark(const QPalette& palette) {
    const QColor ground = palette.color(QPalette::Window);
    return (ground == QColor(Qt::black) || ground == QColor(Qt::white)) &&
           contrast(palette.color(QPalette::WindowText), ground) >= 7;
}

QPalette whiteOnBlack() {
    QPalette palette(Qt::black, Qt::black);
    palette.setColor(QPalette::Highlight, Qt::yellow);
    palette.setColor(QPalette::HighlightedText, Qt::black);
    return palette;
}

// Keeps the desktop's own inks where they can be read.
QPalette madeReadable(QPalette palette) {
    using Role = QPalette::ColorRole;
    palette.setColor(QPalette::AlternateBase, palette.color(QPalette::Base));
    constexpr std::pair<Role, Role> pairs[] = {{QPalette::WindowText, QPalette::Window},
                                               {QPalette::Text, QPalette::Base},
                                               {QPalette::ButtonText, QPalette::Button},
                                               {QPalette::PlaceholderText, QPalette::Base},
                                               {QPalette::HighlightedText, QPalette::Highlight},
                                               {QPalette::ToolTipText, QPalette::ToolTipBase},
                                               {QPalette::Link, QPalette::Base}};
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const double least = group == QPalette::Disabled ? readableGreyed : readable;
        for (const auto& [ink, ground] : pairs) {
            const QColor on = palette.color(group, ground);
            if (contrast(palette.color(group, ink), on) < least) {
                palette.setColor(group, ink, inkOn(on));
            }
        }
    }
    return palette;
}

/// The desktop's palette where it asks for high contrast. Many an ordinary desktop is black on white,
/// so that alone asks for nothing.
std::optional<QPalette> paletteAsked(const QPalette& desktop) {
    const bool asked = seat::wantsHighContrast();
    if (isStark(desktop) && (asked || desktop.color(QPalette::Window) == QColor(Qt::black))) {
        return madeReadable(desktop);
    }
    return asked ? std::optional(madeReadable(whiteOnBlack())) : std::nullopt;
}

QString sheet(const char* name) {
    QFile file(QStringLiteral(":/theme/%1.qss").arg(QLatin1String(name)));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// A user who asked the system for larger letters keeps them.
QFont baseFont(const QFont& system) {
    QFont font;
    font.setFamilies(
        {QStringLiteral("Segoe UI"), QStringLiteral("Open Sans"), QStringLiteral("DejaVu Sans")});
    font.setPointSizeF(std::max(basePointSize, system.pointSizeF()));
    return font;
}

} // namespace

void applyTheme(QApplication& application) {
    initResources();
    const auto asked = paletteAsked(application.palette());
    application.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    application.setPalette(asked.value_or(calmPalette()));
    const bool white = inkOn(application.palette().color(QPalette::Base)) == QColor(Qt::white);
    application.setStyleSheet(sheet("theme") +
                              sheet(asked ? "contrast" : "calm")
                                  .replace(QLatin1String("@ink"), white ? QLatin1String("white")
                                                                        : QLatin1String("black")));
    // Behind the style sheet, which on Windows gives grids, menus and status bars the system's own.
    application.setFont(baseFont(application.font()));
}

} // namespace velcro::ui
