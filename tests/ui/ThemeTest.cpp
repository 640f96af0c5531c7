#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <gtest/gtest.h>

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
