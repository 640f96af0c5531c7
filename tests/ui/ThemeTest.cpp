#include "ui/Theme.h"

#include "ui/Contrast.h"
#include "ui/KeyButton.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QRegularExpression>
#include <QStyledItemDelegate>
#include <QTabBar>
#include <gtest/gtest.h>

using namespace velcro::ui;

namespace {

/// The colour that the rule gives the property; invalid without one.
QColor colourOf(const QString& rule, const QString& property) {
    const QRegularExpression stated("(?:^|[;\\s{])" + property + ":[^;]*(#[0-9a-f]{6})");
    return QColor(stated.match(rule).captured(1));
}

/// Every text of the palette against what it stands on.
void expectReadable(const QPalette& palette) {
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
}

/// Dresses the program on a desktop of that palette, and as before in the end.
class Desktop
{
public:
    explicit Desktop(const QPalette& palette) {
        qApp->setPalette(palette);
        applyTheme(*qApp);
    }
    ~Desktop() {
        qApp->setPalette(QPalette(QColor(0xef, 0xef, 0xef)));
        applyTheme(*qApp);
    }
};

/// How far the darkest and the lightest dot of the widget's picture lie apart.
double contrastIn(QWidget& widget) {
    const QImage seen = widget.grab().toImage();
    QColor darkest = Qt::white;
    QColor lightest = Qt::black;
    for (int y = 4; y < seen.height() - 4; ++y) {
        for (int x = 4; x < seen.width() - 4; ++x) {
            const QColor dot = seen.pixelColor(x, y);
            darkest = dot.lightnessF() < darkest.lightnessF() ? dot : darkest;
            lightest = dot.lightnessF() > lightest.lightnessF() ? dot : lightest;
        }
    }
    return contrast(darkest, lightest);
}

} // namespace

TEST(ThemeTest, contrastIsCountedAsTheGuidelinesDo) {
    EXPECT_DOUBLE_EQ(contrast(Qt::black, Qt::white), 21);
    EXPECT_NEAR(contrast(QColor(0x76, 0x76, 0x76), Qt::white), 4.54, 0.01);
    for (const QRgb ground : {0xff3a5ea4, 0xff3dbc66, 0xffff0000, 0xff808080}) {
        EXPECT_GE(contrast(inkOn(ground), ground), 4.5) << "a caption of the menu";
    }
}

TEST(ThemeTest, textStandsOutFromWhatItStandsOn) {
    expectReadable(QApplication::palette());
    int rules = 0;
    for (const QString& rule : qApp->styleSheet().split('}')) {
        const QColor ink = colourOf(rule, "color");
        const QColor ground = colourOf(rule, "background");
        if (ink.isValid() && ground.isValid()) {
            ++rules;
            EXPECT_GE(contrast(ink, ground), rule.contains(":disabled") ? 3 : 4.5)
                << rule.toStdString();
        }
        if (rule.contains("QLineEdit") && colourOf(rule, "border-color").isValid()) {
            EXPECT_GE(contrast(colourOf(rule, "border-color"), Qt::white), 3) << rule.toStdString();
        }
    }
    EXPECT_GT(rules, 5);
}

TEST(ThemeTest, aDesktopOfHighContrastIsFollowed) {
    QPalette yellow(Qt::yellow, Qt::black, Qt::white, Qt::darkGray, Qt::gray, Qt::yellow, Qt::white,
                    Qt::black, Qt::black);
    yellow.setColor(QPalette::Highlight, Qt::blue);
    yellow.setColor(QPalette::HighlightedText, Qt::white);
    const Desktop desktop(yellow);
    EXPECT_EQ(QApplication::palette().color(QPalette::WindowText), QColor(Qt::yellow));
    EXPECT_EQ(QApplication::palette().color(QPalette::Highlight), QColor(Qt::blue));
    expectReadable(QApplication::palette());
    QLineEdit edit("SN100100002");
    KeyButton button("Save");
    KeyButton greyed("Save");
    greyed.setEnabled(false);
    KeyButton main("Save");
    main.setRole(KeyButton::Role::Main);
    QComboBox combo;
    combo.addItem("WALKIN");
    QTabBar tabs;
    tabs.addTab("Faults");
    QGroupBox group("Billing");
    for (QWidget* control :
         std::initializer_list<QWidget*>{&edit, &button, &greyed, &main, &combo, &tabs, &group}) {
        control->resize(160, 46);
        control->show();
        EXPECT_GE(contrastIn(*control), control == &greyed ? 3 : 4.5)
            << control->metaObject()->className();
    }
    EXPECT_EQ(edit.grab().toImage().pixelColor(100, 8), QColor(Qt::black))
        << "the desktop's ground";
}

#ifndef Q_OS_WIN // where the setting is the system's and not the session's
TEST(ThemeTest, aDesktopThatOnlySaysSoGetsWhiteOnBlack) {
    qputenv("GTK_THEME", "HighContrastInverse");
    {
        const Desktop desktop(QPalette(QColor(0xef, 0xef, 0xef)));
        qunsetenv("GTK_THEME");
        EXPECT_EQ(QApplication::palette().color(QPalette::Window), QColor(Qt::black));
        expectReadable(QApplication::palette());
    }
    EXPECT_NE(QApplication::palette().color(QPalette::Window), QColor(Qt::black));
}
#endif

TEST(ThemeTest, anOrdinaryDesktopOfBlackOnWhiteKeepsTheHousesLook) {
    const Desktop desktop(QPalette(Qt::black, Qt::white, Qt::white, Qt::darkGray, Qt::gray,
                                   Qt::black, Qt::white, Qt::white, Qt::white));
    EXPECT_NE(QApplication::palette().color(QPalette::Window), QColor(Qt::white));
}

TEST(ThemeTest, rowsOfADropDownListAreAFingerHigh) {
    QComboBox combo;
    combo.setItemDelegate(new QStyledItemDelegate(&combo));
    combo.addItem("WALKIN - WALKIN");
    combo.show();
    combo.showPopup();
    EXPECT_GE(combo.view()->sizeHintForRow(0), touchHeight);
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
