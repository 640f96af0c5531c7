#include "application/MAIN000.h"
#include "screens/SysStatusBar.h"
#include "ui/Handler.h"

#include <QAction>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

using velcro::ui::CaptionPanel;
using velcro::ui::MenuTile;
using velcro::ui::PictureBox;
using velcro::ui::StatusBar;

namespace {
constexpr QPoint mainMenuPlace{20, 222};
constexpr int barHeight = 34;
} // namespace

/// One button of a menu, with the action of its key.
struct TfrmMAIN000::Entry
{
    Menu menu;
    const char* button;
    const char* caption;
    const char* action;
    int key;
    const char* keyCap;
    const char* picture;
    void (TfrmMAIN000::*click)(); // nullptr: kept for a later screen
    bool keyClicks = true;        // false: the key is taken and does nothing
    const char* hint = "";
};

const std::vector<TfrmMAIN000::Entry>& TfrmMAIN000::entries() {
    using M = TfrmMAIN000;
    // clang-format off
    static const std::vector<Entry> table = {
        {Menu::Main, "btnMNURepairsOrders", "REPAIR ORDERS MANAGEMENT", "acMNURepairsOrders", Qt::Key_F2, "F2", "tools", &M::btnMNURepairsOrdersClick},
        {Menu::Main, "btnMNUQuotations", "CUSTOMER QUOTATIONS", "acMNUQuotations", Qt::Key_F3, "F3", "money", nullptr},
        {Menu::Main, "btnMNUBookingDiary", "BOOKING DIARY (CALENDER)", "acMNUBookingDiary", Qt::Key_F4, "F4", "calendar", nullptr},
        {Menu::Main, "btnMNUReports", "REPORTING && DATA", "acMNUReports", Qt::Key_F7, "F7", "chart", &M::btnMNUReportsClick, true, "Maintenance Analytics and Reporting"},
        {Menu::Main, "btnMNUConfiguration", "SYSTEM CONFIGURATION", "acMNUConfiguration", Qt::Key_F8, "F8", "settings", &M::btnMNUConfigurationClick},
        {Menu::Main, "btnMNUExit", "EXIT   APPLICATION", "acMNUExit", Qt::Key_Escape, "ESC", "exit", &M::btnMNUExitClick},
        {Menu::Reports, "btnREPJobStatus", "JOB STATUS REPORT", "acREPJobStatus", Qt::Key_F2, "F2", "document", nullptr},
        {Menu::Reports, "btnREPQuoteSummary", "REPAIR SUMMARY", "acREPQuoteSummary", Qt::Key_F3, "F3", "chart", nullptr},
        {Menu::Reports, "btnREPDiaryEvents", "DIARY EVENTS REPORT", "acREPDiaryEvents", Qt::Key_F4, "F4", "calendar", nullptr},
        {Menu::Reports, "btnREPExit", "RETURN TO MENU", "acREPExit", Qt::Key_Escape, "ESC", "back", &M::btnREPExitClick},
        {Menu::Configuration, "btnCFGSystemCodes", "SYSTEM   CODES", "acCFGSystemCodes", Qt::Key_F2, "F2", "codes", &M::btnCFGSystemCodesClick, false},
        {Menu::Configuration, "btnCFGTechnicians", "WORKSHOP TECHNICIANS", "acCFGTechnicians", Qt::Key_F3, "F3", "users", &M::btnCFGTechniciansClick, false},
        {Menu::Configuration, "btnCFGProcessCodes", "PROCESS CODES", "acCFGProcessCodes", Qt::Key_F4, "F4", "process", &M::btnCFGProcessCodesClick, false},
        {Menu::Configuration, "btnCFGExit", "RETURN TO MENU", "acCFGExit", Qt::Key_Escape, "ESC", "back", &M::btnCFGExitClick},
    };
    // clang-format on
    return table;
}

void TfrmMAIN000::makeBackground() {
    imgMain = new PictureBox(QStringLiteral("imgMain"), this);
    imgMain->setPicture(QStringLiteral("background"), Qt::KeepAspectRatioByExpanding);
    imgVelmara = new PictureBox(QStringLiteral("imgVelmara"), this);
    imgVelmara->setPicture(QStringLiteral("suite-logo"));
    imgVelmara->resize(500, 96);
    imgCompany = new PictureBox(QStringLiteral("imgCompany"), this);
    imgCompany->hide();
    pnlBranchColor = new QWidget(this);
    pnlBranchColor->setObjectName(QStringLiteral("pnlBranchColor"));
    pnlBranchColor->setAutoFillBackground(true);
    lblBranchColor = new QLabel(pnlBranchColor);
    lblBranchColor->setObjectName(QStringLiteral("lblBranchColor"));
    lblBranchColor->setAlignment(Qt::AlignCenter);
    QFont letters = lblBranchColor->font();
    letters.setPointSizeF(letters.pointSizeF() + 7);
    letters.setBold(true);
    lblBranchColor->setFont(letters);
    (new QHBoxLayout(pnlBranchColor))->addWidget(lblBranchColor);
    pnlBranchColor->hide();
}

void TfrmMAIN000::makeBars() {
    MessageStatusBar = new StatusBar(this);
    MessageStatusBar->setObjectName(QStringLiteral("MessageStatusBar"));
    MessageStatusBar->addPanel(velcro::ui::psHTML, QStringLiteral("MAIN000"));
    for (int panel = 1; panel <= 3; ++panel) {
        MessageStatusBar->addPanel(velcro::ui::psHTML, {}, -1);
    }
    MessageStatusBar->setPanelDrawer(sfg_StatusBarDisplay);
    StatusBar1 = new StatusBar(this);
    StatusBar1->setObjectName(QStringLiteral("StatusBar1"));
    for (int panel = 0; panel < 6; ++panel) {
        StatusBar1->addPanel(velcro::ui::psHTML, {}, panel == 5 ? -1 : 0);
    }
    for (auto* bar : {MessageStatusBar, StatusBar1}) {
        bar->setAutoFillBackground(true);
        bar->setFixedHeight(barHeight);
    }
}

/// Tiles grow with the screen that the form is first shown on; the panels keep their places.
QSize TfrmMAIN000::tileSize() const {
    const QSize room = QGuiApplication::primaryScreen()->availableSize();
    const auto around = [](QPoint place) { return place.y() + 2 * barHeight; };
    const double wide = std::clamp(room.width() / 1024.0, 0.6, 1.5);
    const double high = std::clamp(
        (room.height() - around(mainMenuPlace)) / double(768 - around(mainMenuPlace)), 0.6, 1.5);
    return QSize(qRound(290 * wide), qRound(104 * high));
}

MenuTile* TfrmMAIN000::makeTile(const Entry& entry, const QSize& size) {
    auto* tile = new MenuTile(QLatin1String(entry.button), QLatin1String(entry.caption),
                              QLatin1String(entry.picture), size, this);
    tile->setToolTip(QLatin1String(entry.hint));
    auto* action = new QAction(this);
    action->setObjectName(QLatin1String(entry.action));
    action->setShortcut(QKeySequence(entry.key));
    addAction(action);
    if (entry.click != nullptr) {
        velcro::ui::connectHandler(tile, &QPushButton::clicked, this, entry.click);
        if (entry.keyClicks) {
            connect(action, &QAction::triggered, tile, &QPushButton::click);
        }
    }
    groups_.push_back({entry.menu, tile, action, entry.keyCap});
    return tile;
}

void TfrmMAIN000::addTiles(CaptionPanel& panel, const QStringList& names, int columns,
                           const QSize& tile) {
    auto* grid = new QGridLayout;
    grid->setSpacing(8);
    for (int i = 0; i < names.size(); ++i) {
        const auto entry = std::ranges::find_if(entries(), [&names, i](const Entry& candidate) {
            return names[i] == QLatin1String(candidate.button);
        });
        grid->addWidget(makeTile(*entry, tile), i / columns, i % columns);
    }
    panel.body().addLayout(grid);
}

CaptionPanel* TfrmMAIN000::makeGroup(const QString& name, const QString& caption, int height) {
    return new CaptionPanel(name, caption, height, this);
}

void TfrmMAIN000::makeMainMenu(const QSize& tile, int caption) {
    const int small = caption * 4 / 5;
    pnlMainMenu =
        makeGroup(QStringLiteral("pnlMainMenu"), QStringLiteral("WORKSHOP SOFTWARE"), caption);
    pnlMNUOrders =
        makeGroup(QStringLiteral("pnlMNUOrders"), QStringLiteral("REPAIR ORDERS"), small);
    addTiles(*pnlMNUOrders, {"btnMNURepairsOrders", "btnMNUQuotations", "btnMNUBookingDiary"}, 3,
             tile);
    pnlMNUReports = makeGroup(QStringLiteral("pnlMNUReports"), QStringLiteral("REPORTING"), small);
    addTiles(*pnlMNUReports, {"btnMNUReports"}, 1, tile);
    pnlMNUAdministration =
        makeGroup(QStringLiteral("pnlMNUAdministration"), QStringLiteral("ADMINISTRATION"), small);
    addTiles(*pnlMNUAdministration, {"btnMNUConfiguration"}, 1, tile);
    pnlMainMenu->body().addWidget(pnlMNUOrders);
    auto* lower = new QHBoxLayout;
    lower->addWidget(pnlMNUReports);
    lower->addWidget(pnlMNUAdministration);
    lower->addStretch();
    auto* exit = new QVBoxLayout;
    exit->addStretch();
    exit->addWidget(makeTile(entries()[5], tile));
    exit->addSpacing(small / 3);
    lower->addLayout(exit);
    lower->addSpacing(small / 3);
    pnlMainMenu->body().addLayout(lower);
    pnlMainMenu->adjustSize();
    pnlMainMenu->move(mainMenuPlace);
}

CaptionPanel* TfrmMAIN000::makeSubMenu(Menu menu, const QString& name, const QString& caption,
                                       const QSize& tile, int columns) {
    auto* panel = makeGroup(name, caption, qRound(tile.height() * 0.33));
    QStringList names;
    for (const Entry& entry : entries()) {
        if (entry.menu == menu) {
            names << QLatin1String(entry.button);
        }
    }
    addTiles(*panel, names, columns, tile);
    panel->adjustSize();
    panel->hide();
    return panel;
}

// On a low screen the four buttons of a sub-menu stand in one row.
void TfrmMAIN000::makeMenus() {
    const QSize tile = tileSize();
    makeMainMenu(tile, qRound(tile.height() * 0.33));
    const QSize room = QGuiApplication::primaryScreen()->availableSize();
    const int below = room.height() - configurationPlace.y() - 2 * barHeight;
    const bool low = below < tile.height() * 3;
    const int beside = (room.width() - configurationPlace.x() - 60) / 4;
    const QSize subTile = low ? QSize(std::min(beside, tile.width()), tile.height()) : tile;
    const int columns = low ? 4 : 2;
    pnlReports = makeSubMenu(Menu::Reports, QStringLiteral("pnlReports"),
                             QStringLiteral("REPORTING & DATA"), subTile, columns);
    pnlADMConfiguration = makeSubMenu(Menu::Configuration, QStringLiteral("pnlADMConfiguration"),
                                      QStringLiteral("CONFIGURATION"), subTile, columns);
}
