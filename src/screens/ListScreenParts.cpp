// How the parts of a list screen stand: the panel of buttons on the left, the grid with everything
// else, first to last below it, the search panel that drops in above it.
#include "screens/ListScreen.h"
#include "screens/ScreenServices.h"
#include "ui/Icons.h"
#include "ui/Theme.h"

#include <QBoxLayout>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QToolButton>

using velcro::ui::connectHandler;
using velcro::ui::KeyButton;
using velcro::ui::RowGrid;

namespace {

constexpr int margin = 8;
constexpr int panelWidth = 206;

QLabel* heading(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setProperty("role", "heading");
    return label;
}

} // namespace

void ListScreen::makePanel() {
    panel_ = new QFrame(this);
    panel_->setObjectName(QStringLiteral("pnlOptions"));
    panel_->setFixedWidth(panelWidth);
    auto* buttons = new QVBoxLayout(panel_);
    buttons->setContentsMargins(margin, margin, margin, margin);
    buttons->addWidget(heading(QStringLiteral("OPTIONS"), panel_));
    functionsHeading_ = heading(QStringLiteral("FUNCTIONS"), panel_);
    functionsHeading_->setContentsMargins(0, 2 * margin, 0, 0);
    buttons->addWidget(functionsHeading_);
    buttons->addStretch(1);
    auto* close = newButton(QStringLiteral("btnCancel"), QStringLiteral("Close Window"),
                            QStringLiteral("ESC"));
    close->setInPanel(true);
    connectHandler(close, &KeyButton::clicked, this, &ListScreen::reject);
    buttons->addWidget(close);

    makeGrid();
    auto* right = new QVBoxLayout;
    right->setContentsMargins(margin, margin, margin, margin);
    right->setSpacing(margin);
    if (!facts_.searchFragments.isEmpty()) {
        makeSearchPanel();
        right->addWidget(pnlSearch);
    }
    right->addWidget(grid_, 1);
    right->addLayout(makeNavigation());
    auto* sides = new QHBoxLayout;
    sides->setSpacing(0);
    sides->addWidget(panel_);
    sides->addLayout(right, 1);
    body().addLayout(sides);
}

void ListScreen::makeGrid() {
    grid_ = new RowGrid(this);
    grid_->setObjectName(QStringLiteral("grdList"));
    grid_->setAccessibleName(windowTitle());
    grid_->rowModel().setCellReader(cellText);
    grid_->setColumns(facts_.columns);
    connectHandler(grid_, &RowGrid::rowChosen, this, [this] { rowChosen(); });
    connectHandler(grid_, &RowGrid::currentRecordChanged, this, [this] {
        if (const auto row = grid_->currentResultRow()) {
            query_.setRecNo(static_cast<int>(*row) + 1);
        }
    });
    makeGridMenu();
}

void ListScreen::makeGridMenu() {
    grid_->setContextMenuPolicy(Qt::ActionsContextMenu);
    const auto add = [this](const char* name, const char* text, bool enabled, auto handler) {
        auto* action = new QAction(QString::fromLatin1(text), grid_);
        action->setObjectName(QString::fromLatin1(name));
        action->setEnabled(enabled);
        connectHandler(action, &QAction::triggered, this, handler);
        grid_->addAction(action);
    };
    add("acGridCustom", "Customise Grid", bool(gScreenServices.gridCustom),
        [this] { gScreenServices.gridCustom(*grid_, unitName()); });
    add("acGridPrint", "Print Grid", true, [this] { btnPrintClick(); });
    add("acGridExcel", "Export Grid to Excell", bool(gScreenServices.exportExcell),
        [this] { gScreenServices.exportExcell(*grid_, unitName()); });
}

void ListScreen::makeSearchPanel() {
    pnlSearch = new QFrame(this);
    pnlSearch->setObjectName(QStringLiteral("pnlSearch"));
    edSearchText = new QLineEdit(pnlSearch);
    edSearchText->setObjectName(QStringLiteral("edSearchText"));
    auto* label = new QLabel(QStringLiteral("Search &Text"), pnlSearch);
    label->setBuddy(edSearchText);
    edSearchText->setAccessibleName(QStringLiteral("Search Text"));
    btnSearch = newButton(QStringLiteral("btnSearch"), QStringLiteral("Search"), {});
    btnSearch->setRole(KeyButton::Role::Main);
    auto* close =
        newButton(QStringLiteral("btnSearchClose"), QStringLiteral("Close"), QStringLiteral("ESC"));
    connectHandler(btnSearch, &KeyButton::clicked, this, [this] { btnSearchClick(); });
    connectHandler(close, &KeyButton::clicked, this, [this] { hideSearch(); });
    connectHandler(edSearchText, &QLineEdit::returnPressed, this, [this] { searchEntered(); });
    auto* row = new QHBoxLayout(pnlSearch);
    row->addWidget(label);
    row->addWidget(edSearchText, 1);
    row->addWidget(btnSearch);
    row->addWidget(close);
    pnlSearch->hide();
}

QHBoxLayout* ListScreen::makeNavigation() {
    struct Step
    {
        const char* name;
        const char* caption;
        void (RowGrid::*go)();
    };
    static constexpr Step steps[] = {
        {"btnFirst", "First", &RowGrid::first},
        {"btnPrev", "Previous", &RowGrid::previous},
        {"btnNext", "Next", &RowGrid::next},
        {"btnLast", "Last", &RowGrid::last},
    };
    auto* row = new QHBoxLayout;
    row->setSpacing(margin);
    for (const auto& step : steps) {
        auto* button =
            newButton(QString::fromLatin1(step.name), QString::fromLatin1(step.caption), {});
        connectHandler(button, &KeyButton::clicked, grid_, step.go);
        row->addWidget(button);
    }
    row->addStretch(1);
    rowCount_ = new QLabel(this);
    rowCount_->setObjectName(QStringLiteral("lblRowCount"));
    row->addWidget(rowCount_);
    row->addWidget(newTechHelpButton());
    return row;
}

KeyButton* ListScreen::addToPanel(int position, const QString& name, const QString& caption,
                                  const QString& keyCap) {
    auto* button = newButton(name, caption, keyCap);
    button->setInPanel(true);
    auto* buttons = static_cast<QVBoxLayout*>(panel_->layout());
    buttons->insertWidget(position, button);
    // Tab goes down the panel in the order that is seen.
    QWidget* before = grid_;
    for (int i = 0; i < buttons->count(); ++i) {
        if (auto* widget = qobject_cast<KeyButton*>(buttons->itemAt(i)->widget())) {
            setTabOrder(before, widget);
            before = widget;
        }
    }
    return button;
}

KeyButton* ListScreen::addOption(const QString& name, const QString& caption,
                                 const QString& keyCap) {
    return addToPanel(panel_->layout()->indexOf(functionsHeading_), name, caption, keyCap);
}

KeyButton* ListScreen::addFunction(const QString& name, const QString& caption,
                                   const QString& keyCap) {
    // Before the stretch and the close button.
    return addToPanel(panel_->layout()->count() - 2, name, caption, keyCap);
}

void ListScreen::setMainButton(KeyButton* button) {
    mainButton_ = button;
    button->setRole(KeyButton::Role::Main);
}

void ListScreen::addSearch(const QString& keyCap) {
    auto* button = addFunction(QStringLiteral("btnLookup"), QStringLiteral("&Search"), {});
    button->setAccessibleName(QStringLiteral("Search"));
    button->setIcon(velcro::ui::icon(QStringLiteral("search")));
    button->setToolTip(QStringLiteral("Search [%1]").arg(keyCap));
    connectHandler(button, &KeyButton::clicked, this, [this] { btnLookupClick(); });
    // A button acts on its underlined letter only after it was seen going down. The text that is
    // typed next would be lost until then.
    button->setShortcut({});
    bindKey(QKeySequence(Qt::ALT | Qt::Key_S), button);
    btnSearch->setKeyCap(keyCap);
}

void ListScreen::addRestore(const QString& keyCap, const QKeySequence& key) {
    btnRestoreGrid =
        addFunction(QStringLiteral("btnRestoreGrid"), QStringLiteral("Restore Grid"), keyCap);
    connectHandler(btnRestoreGrid, &KeyButton::clicked, this, [this] { BuildGrid(); });
    bindKey(key, this, [this] { BuildGrid(); });
}

void ListScreen::addPrint() {
    auto* button = addFunction(QStringLiteral("btnPrint"), QStringLiteral("Print Grid"),
                               QStringLiteral("CTRL-P"));
    connectHandler(button, &KeyButton::clicked, this, [this] { btnPrintClick(); });
    bindKey(QKeySequence(Qt::CTRL | Qt::Key_P), button);
}
