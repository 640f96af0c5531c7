// How the parts of a list screen stand: the panel of buttons on the left, the grid with everything
// else, first to last below it, the search panel that drops in above it.
#include "screens/ButtonPanel.h"
#include "screens/ListScreen.h"

#include "screens/GridLayouts.h"
#include "screens/RecordBar.h"
#include "screens/SearchPanel.h"
#include "ui/ScreenFit.h"

#include <QAction>
#include <QBoxLayout>
#include <QToolButton>

using velcro::ui::connectHandler;
using velcro::ui::RowGrid;
using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int margin = 8;
} // namespace

void ListScreen::makePanel() {
    options_ = new ButtonPanel(*this);
    sides_ = new QHBoxLayout;
    sides_->setSpacing(0);
    sides_->addWidget(options_);
    body().addLayout(sides_);
}

void ListScreen::addToPanel(const ButtonFacts& facts) {
    auto* button = options_->add(facts, PlainEnter::StaysWithForm);
    if (facts.needsRecord && facts.handler) {
        recordButtons_.push_back(button);
    }
    if (isPlainEnter(facts.key)) {
        enterButton_ = button;
    }
}

void ListScreen::setButtons(const ListButtons& buttons) {
    options_->addHeading(u"OPTIONS"_s);
    for (const auto& facts : buttons.options) {
        addToPanel(facts);
    }
    if (!buttons.functions.isEmpty()) {
        options_->addHeading(u"FUNCTIONS"_s);
    }
    for (const auto& facts : buttons.functions) {
        addToPanel(facts);
    }
    // Esc closes what is open on top first.
    options_->addClose({.name = buttons.closeName,
                        .caption = buttons.closeCaption,
                        .handler = [this] { reject(); },
                        .cap = u"ESC"_s});
}

void ListScreen::makeRight() {
    column_ = new QVBoxLayout;
    column_->setContentsMargins(margin, margin, margin, margin);
    column_->setSpacing(margin);
    if (!facts_.search.terms.isEmpty()) {
        makeSearchPanel();
        column_->addWidget(pnlSearch_);
    }
    makeGrid();
    middle_ = new QHBoxLayout;
    middle_->setSpacing(margin);
    middle_->addWidget(grid_, 1);
    column_->addLayout(middle_, 1);
    records_ = new RecordBar(*this, *grid_, newTechHelpButton());
    column_->addWidget(records_);
    sides_->addLayout(column_, 1);
}

QWidget& ListScreen::above() {
    if (above_ == nullptr) {
        above_ = new QWidget(this);
        above_->setObjectName(u"pnlAbove"_s);
        auto* page = new velcro::ui::ScrollPage(above_, this);
        page->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
        column_->insertWidget(column_->indexOf(middle_), page);
    }
    return *above_;
}

QWidget& ListScreen::beside() {
    if (beside_ == nullptr) {
        beside_ = new QWidget(this);
        beside_->setObjectName(u"pnlBeside"_s);
        middle_->addWidget(new velcro::ui::ScrollPage(beside_, this), 1);
    }
    return *beside_;
}

// The grid comes before the buttons of the panel, since it has the focus when the screen opens.
void ListScreen::orderTabs() {
    QWidget* before = nullptr;
    const auto add = [this, &before](QWidget* next) {
        // A combo has its list in a window of its own.
        if ((next->focusPolicy() & Qt::TabFocus) != 0 && next->window() == this) {
            if (before != nullptr) {
                setTabOrder(before, next);
            }
            before = next;
        }
    };
    for (QWidget* part :
         {static_cast<QWidget*>(pnlSearch_), above_, static_cast<QWidget*>(grid_), beside_,
          static_cast<QWidget*>(options_), static_cast<QWidget*>(records_)}) {
        if (part == grid_) {
            add(grid_);
        } else if (part != nullptr) {
            for (auto* control : part->findChildren<QWidget*>()) {
                add(control);
            }
        }
    }
}

void ListScreen::makeGrid() {
    auto columns = facts_.columns;
    for (auto column : facts_.hidden) {
        column.visible = false;
        columns.push_back(std::move(column));
    }
    grid_ = new RowGrid(this);
    grid_->setObjectName(u"grdList"_s);
    grid_->setAccessibleName(windowTitle());
    grid_->rowModel().setCellReader(cellText);
    grid_->setColumns(std::move(columns));
    grid_->setSpokenField(facts_.spokenBy.isEmpty() ? facts_.columns.front().field
                                                    : facts_.spokenBy);
    connectHandler(grid_, &RowGrid::rowChosen, this, [this] { rowChosen(); });
    connectHandler(grid_, &RowGrid::clicked, this, [this] { rowClicked(); });
    connectHandler(grid_, &RowGrid::currentRecordChanged, this, [this] { currentRecordChanged(); });
    makeGridMenu();
}

void ListScreen::makeGridMenu() {
    grid_->setContextMenuPolicy(Qt::ActionsContextMenu);
    const auto add = [this](const QString& name, const QString& text, auto handler) {
        auto* action = new QAction(text, grid_);
        action->setObjectName(name);
        connectHandler(action, &QAction::triggered, this, handler);
        grid_->addAction(action);
    };
    add(u"acGridCustom"_s, u"Customise Grid"_s, [this] { sfvel_GridCustom(*grid_, unitName()); });
    add(u"acGridPrint"_s, u"Print Grid"_s, [this] { btnPrintClick(); });
    add(u"acGridExcel"_s, u"Export Grid to Excell"_s,
        [this] { sfvel_ExportExcell(*grid_, unitName()); });
}

void ListScreen::makeSearchPanel() {
    pnlSearch_ = new SearchPanel(this, facts_.search.alsoKeys);
    connectHandler(pnlSearch_, &SearchPanel::searchAsked, this, [this] { btnSearchClick(); });
    connectHandler(pnlSearch_, &SearchPanel::entered, this, [this] { searchEntered(); });
    connectHandler(pnlSearch_, &SearchPanel::closeAsked, this, [this] { hideSearch(); });
    if (facts_.search.onLeaving) {
        pnlSearch_->watchLeaving();
        connectHandler(pnlSearch_, &SearchPanel::left, this, [this] { btnSearchClick(); });
    }
}

ButtonFacts ListScreen::searchButton() {
    return {.name = u"btnLookup"_s,
            .caption = u"&Search"_s,
            .handler = [this] { btnLookupClick(); },
            .hint = u"Search [CTRL-S]"_s,
            .icon = u"search"_s};
}

ButtonFacts ListScreen::restoreButton(const QList<QKeySequence>& alsoKeys) {
    return {.name = u"btnRestoreGrid"_s,
            .caption = u"Restore Grid"_s,
            .key = Qt::CTRL | Qt::Key_R,
            .handler = [this] { BuildGrid(); },
            .alsoKeys = alsoKeys};
}

ButtonFacts ListScreen::printButton() {
    return {.name = u"btnPrint"_s,
            .caption = u"Print Grid"_s,
            .key = Qt::CTRL | Qt::Key_P,
            .handler = [this] { btnPrintClick(); }};
}

ButtonFacts MaintenanceList::addButton(const QString& caption) {
    return {.name = u"btnAdd"_s, .caption = caption, .key = Qt::Key_Insert, .handler = [this] {
                ShowDetailForm(1);
            }};
}

ButtonFacts MaintenanceList::updateButton(const QString& caption, const QKeySequence& key) {
    return {.name = u"btnUpdate"_s,
            .caption = caption,
            .key = key,
            .handler = [this] { ShowDetailForm(2); },
            .needsRecord = true,
            .role = isPlainEnter(key) ? ButtonFacts::Role::Main : ButtonFacts::Role::Plain};
}

ButtonFacts MaintenanceList::deleteButton(const QString& caption) {
    return {.name = u"btnDelete"_s,
            .caption = caption,
            .key = Qt::Key_Delete,
            .handler = [this] { ShowDetailForm(3); },
            .needsRecord = true,
            .role = ButtonFacts::Role::Danger};
}
