#include "ui/Theme.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QRegularExpression>
#include <QStyledItemDelegate>
#include <cmath>
#include <gtest/gtest.h>

namespace {

double luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other) {
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

/// The colour that the rule gives the property; invalid without one.
QColor colourOf(const QString& rule, const QString& property) {
    const QRegularExpression stated("(?:^|[;\\s{])" + property + ":[^;]*(#[0-9a-f]{6})");
    return QColor(stated.match(rule).captured(1));
}

} // namespace

TEST(ThemeTest, textStandsOutFromWhatItStandsOn) {
    const QPalette palette = QApplication::palette();
    const std::pair<QPalette::ColorRole, QPalette::ColorRole> pairs[] = {
        {QPalette::WindowText, QPalette::Window},
        {QPalette::Text, QPalette::Base},
        {QPalette::Text, QPalette::AlternateBase},
        {QPalette::ButtonText, QPalette::Button},
        {QPalette::PlaceholderText, QPalette::Base},
        {QPalette::HighlightedText, QPalette::Highlight},
        {QPalette::ToolTipText, QPalette::ToolTipBase}};
    for (const auto& [ink, ground] : pairs) {
        EXPECT_GE(contrast(palette.color(ink), palette.color(ground)), 4.5) << ink;
        EXPECT_GE(contrast(palette.color(QPalette::Disabled, ink),
                           palette.color(QPalette::Disabled, ground)),
                  3)
            << "disabled " << ink;
    }
    int rules = 0;
    for (const QString& rule : qApp->styleSheet().split('}')) {
        const QColor ink = colourOf(rule, "color");
        const QColor ground = colourOf(rule, "background");
        if (ink.isValid() && ground.isValid()) {
            ++rules;
            EXPECT_GE(contrast(ink, ground), rule.contains(":disabled") ? 3 : 4.5)
                << rule.toStdString();
        }
        if (rule.contains("QLineEdit") && colourOf(rule, "border").isValid()) {
            EXPECT_GE(contrast(colourOf(rule, "border"), Qt::white), 3) << rule.toStdString();
        }
    }
    EXPECT_GT(rules, 5);
}

TEST(ThemeTest, rowsOfADropDownListAreAFingerHigh) {
    QComboBox combo;
    combo.setItemDelegate(new QStyledItemDelegate(&combo));
    combo.addItem("WALKIN - WALKIN");
    combo.show();
    combo.showPopup();
    EXPECT_GE(combo.view()->sizeHintForRow(0), velcro::ui::touchHeight);
}

TEST(ThemeTest, aComboShowsAsManyRowsAtATimeAsItSays) {
    const struct
    { int entries, limit, shown; } cases[] = {{50, 15, 15}, {50, 10, 10}, {4, 20, 4}};
    for (const auto& [entries, limit, shown] : cases) {
        QComboBox combo;
        for (int i = 0; i < entries; ++i) {
            combo.addItem(QString::number(i));
        }
        combo.setMaxVisibleItems(limit);
        combo.show();
        combo.showPopup();
        QApplication::processEvents();
        auto* rows = combo.view();
        EXPECT_EQ(rows->viewport()->height() / rows->sizeHintForRow(0), shown)
            << entries << " entries";
    }
}
