#include "screens/CMN005.h"

#include "screens/GridLayouts.h"
#include "ui/RowGrid.h"
#include "ui/ScreenFit.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <utility>

using velcro::ui::CellType;
using velcro::ui::RowGrid;
namespace sql = velcro::sql;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int tickColumn = 0;
constexpr int margin = 8;

} // namespace

TfrmCMN005::TfrmCMN005(const RowGrid& grid, QWidget* parent)
    : Screen(u"CMN005"_s, u"Grid Customisation Settings"_s, parent) {
    auto* sides = new QHBoxLayout;
    sides->setContentsMargins(margin, margin, margin, margin);
    sides->setSpacing(margin);
    body().addLayout(sides);
    makeList(grid);
    sides->addWidget(clGridColumns, 1);
    makeButtons();
    resize(QSize(640, 600).boundedTo(size()));
}

void TfrmCMN005::makeList(const RowGrid& grid) {
    clGridColumns = new RowGrid(this);
    clGridColumns->setObjectName(u"clGridColumns"_s);
    clGridColumns->setAccessibleName(u"Columns of the grid"_s);
    clGridColumns->setSortingEnabled(false);
    clGridColumns->setColumns(
        {{.field = u"Shown"_s, .type = CellType::Tick, .editable = true}, {.field = u"Column"_s}});
    for (const auto& column : velcro::ui::gridColumnOrder(grid)) {
        const auto& facts = grid.rowModel().columns()[column.index];
        if (mayShowColumn(facts)) {
            listed_.push_back({column.index, column.shown, facts.heading()});
        }
    }
    showColumns(0);
}

void TfrmCMN005::showColumns(int current) {
    sql::RowSetBuilder rows({{"Shown", sql::ColumnType::Text}, {"Column", sql::ColumnType::Text}});
    for (const auto& column : listed_) {
        rows.addBytes(column.ticked ? "Y" : "N");
        rows.addBytes(column.heading.toStdString());
        rows.endRow();
    }
    clGridColumns->setRows(rows.take());
    clGridColumns->setCurrentIndex(clGridColumns->model()->index(current, tickColumn));
    clGridColumns->setFocus();
}

bool TfrmCMN005::isTicked(std::size_t row) const {
    return clGridColumns->rowModel().isTicked(row, tickColumn);
}

void TfrmCMN005::makeButtons() {
    auto* buttons = new QWidget;
    auto* column = new QVBoxLayout(buttons);
    column->setContentsMargins(0, 0, 0, 0);
    body().itemAt(0)->layout()->addWidget(new velcro::ui::ScrollPage(buttons, this));
    const auto add = [&](const ButtonFacts& facts) { column->addWidget(makeButton(*this, facts)); };
    add({.name = u"btnSelectAll"_s, .caption = u"Select ALL"_s, .handler = [this] {
             tickAll(true);
         }});
    add({.name = u"btnDeselectAll"_s, .caption = u"De-Select ALL"_s, .handler = [this] {
             tickAll(false);
         }});
    column->addSpacing(2 * margin);
    add({.name = u"btnMoveUp"_s,
         .caption = u"Move Column UP"_s,
         .key = Qt::CTRL | Qt::Key_Up,
         .handler = [this] { moveSelected(-1); }});
    add({.name = u"btnMoveDown"_s,
         .caption = u"Move Column DOWN"_s,
         .key = Qt::CTRL | Qt::Key_Down,
         .handler = [this] { moveSelected(1); }});
    column->addStretch(1);
    add({.name = u"btnRestore"_s, .caption = u"Restore Defaults"_s, .handler = [this] {
             finish(false, true);
         }});
    add({.name = u"btnSave"_s,
         .caption = u"Save Settings"_s,
         .key = Qt::Key_F10,
         .handler = [this] { finish(true, false); },
         .role = ButtonFacts::Role::Main});
    add({.name = u"btnExit"_s, .caption = u"Exit"_s, .key = Qt::Key_Escape, .handler = [this] {
             reject();
         }});
}

void TfrmCMN005::tickAll(bool on) {
    for (std::size_t row = 0; row < listed_.size(); ++row) {
        clGridColumns->rowModel().setTicked(row, tickColumn, on);
    }
}

void TfrmCMN005::moveSelected(int by) {
    const auto row = clGridColumns->currentResultRow();
    const int last = static_cast<int>(listed_.size()) - 1;
    const int to = row ? static_cast<int>(*row) + by : -1;
    if (to < 0 || to > last) {
        return;
    }
    for (std::size_t i = 0; i < listed_.size(); ++i) {
        listed_[i].ticked = isTicked(i);
    }
    std::swap(listed_[*row], listed_[to]);
    showColumns(to);
}

void TfrmCMN005::finish(bool apply, bool remove) {
    xApply = apply;
    xSave = apply;
    xDelete = remove;
    accept();
}

std::vector<velcro::ui::GridLayoutColumn> TfrmCMN005::columns() const {
    std::vector<velcro::ui::GridLayoutColumn> result;
    for (std::size_t row = 0; row < listed_.size(); ++row) {
        result.push_back({listed_[row].index, isTicked(row)});
    }
    return result;
}
