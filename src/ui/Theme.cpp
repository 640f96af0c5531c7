#include "ui/Theme.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QPalette>
#include <QStyleFactory>

#include <algorithm>

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
    application.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    application.setPalette(calmPalette());
    QFile sheet(QStringLiteral(":/theme/theme.qss"));
    if (sheet.open(QIODevice::ReadOnly)) {
        application.setStyleSheet(QString::fromUtf8(sheet.readAll()));
    }
    // Behind the style sheet, which on Windows gives grids, menus and status bars the system's own.
    application.setFont(baseFont(application.font()));
}

} // namespace velcro::ui
