#include "application/MAIN000.h"

#include "application/CMN012.h"
#include "application/ColorText.h"
#include "application/LockTimer.h"
#include "data/DataModules.h"
#include "data/DateTimeText.h"
#include "data/DayEnd.h"
#include "data/Session.h"
#include "data/Settings.h"
#include "data/SysLoadData.h"
#include "screens/SysFuncGlobal.h"
#include "screens/SysStatusBar.h"
#include "screens/Terminate.h"
#include "ui/Contrast.h"
#include "ui/Events.h"
#include "ui/Handler.h"
#include "ui/Modal.h"

#include <QAction>
#include <QCloseEvent>
#include <QLabel>
#include <QPainter>
#include <QTimer>

#include <algorithm>
#include <utility>

using velcro::ui::CaptionPanel;
using velcro::ui::guarded;

namespace {

constexpr QRgb background = 0xff4b4b4a;
constexpr QRgb blue = 0xff3a5ea4;
constexpr QRgb green = 0xff3dbc66;
constexpr QRgb red = 0xffff0000;
constexpr QRgb grey = 0xff808080;
constexpr QSize largestLogo{260, 110};
constexpr int leastLogo = 40;                  // height
constexpr int underLogo = 120;                 // from its foot to that of the form
constexpr double factSizes[] = {11, 10, 9, 8}; // points

} // namespace

TfrmMAIN000::TfrmMAIN000(std::function<bool()> start)
    : start_(std::move(start)) {
    setObjectName(QStringLiteral("frmMAIN000"));
    setWindowTitle(QStringLiteral("Velmara Retail Software: Customer Repair Orders"));
    setWindowState(Qt::WindowMaximized);
    resize(1024, 768);
    makeBackground();
    makeMenus();
    makeBars();
    ExeIdle = new velcro::ui::IdleLock(this);
    velcro::ui::connectHandler(ExeIdle, &velcro::ui::IdleLock::idle, this,
                               &TfrmMAIN000::ExeIdleLock);
    for (auto* panel : {pnlMainMenu, pnlMNUOrders, pnlMNUReports, pnlMNUAdministration}) {
        panel->setColor(QColor(grey));
    }
    for (const Menu menu : {Menu::Main, Menu::Reports, Menu::Configuration}) {
        enableMenu(menu, false);
    }
    setMainFormClose([this] { close(); });
}

TfrmMAIN000::~TfrmMAIN000() {
    setMainFormClose({});
}

// ---- start ----

// The window is on screen before the start-up asks anything.
void TfrmMAIN000::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!std::exchange(started_, true)) {
        QTimer::singleShot(0, this, &TfrmMAIN000::FormShow);
    }
}

void TfrmMAIN000::FormShow() {
    sfg_SetCursor(QStringLiteral("BUSY"));
    showKeyCaps();
    bool signedIn = false;
    guarded([this, &signedIn] { signedIn = start_(); });
    if (closed_) {
        return;
    }
    if (!signedIn) {
        endFailedStart();
        return;
    }
    exitStatus_ = 0;
    guarded([this] { finishStart(); });
    sfg_SetCursor(QStringLiteral("RESET"));
    emit menuIsLive();
}

// The pictures come from a module that is made after this form.
void TfrmMAIN000::showKeyCaps() {
    for (const Group& group : groups_) {
        sfg_ImageKeybd32(*group.button, QLatin1String(group.keyCap));
    }
}

void TfrmMAIN000::finishStart() {
    if (!gDBMessage.trimmed().isEmpty()) {
        sfg_DisplayBar("Alert", gDBMessage, *MessageStatusBar, 3);
    }
    Initialize_MainForm();
    gEXELockTime = sfvel_Get_LockAppTimer(gEXEName);
    if (gEXELockTime > 0) {
        ExeIdle->IdleMinutes = gEXELockTime;
        ExeIdle->IdleSeconds = gEXELockTime * 60;
        ExeIdle->setEnabled(true);
    }
    startDate_ = sfg_Date(0);
    Check_EndOfDay_Progress();
}

void TfrmMAIN000::endFailedStart() {
    sfg_SetCursor(QStringLiteral("RESET"));
    close();
}

void TfrmMAIN000::Initialize_MainForm() {
    // The menu goes live whatever is wrong with a logo or with the name of a colour.
    guarded([this] { showFacts(); });
    guarded([this] { showCompanyLogo(); });
    guarded([this] { showBranchBand(); });
    Set_ReportsMenu(false);
    Set_ConfigurationMenu(false);
    Set_MainMenu(true);
}

void TfrmMAIN000::showFacts() {
    const bool switches = gBRCategory == QLatin1String("H") || gBRCategory == QLatin1String("T");
    const QString facts[] = {
        " Connected : " + sfg_Date(0) + " - " + sfg_Time(),
        "User : " + gUserCode,
        "Version  :   " + gVersion,
        "Period : " + QString::number(gAP),
        "Database : " + gDBDBase.trimmed(),
        switches ? "Press  [Alt-F12]  to Switch between Company and/or Branch "
                 : "Velmara Retail Software",
    };
    for (int panel = 0; panel < 6; ++panel) {
        StatusBar1->setPanelText(panel, facts[panel]);
    }
    fitFacts();
}

// All six panels on the narrowest screen, and letters as large as on any other bar where they fit.
void TfrmMAIN000::fitFacts() {
    QFont letters = StatusBar1->font();
    for (const double size : factSizes) {
        letters.setPointSizeF(size);
        StatusBar1->setFont(letters);
        if (StatusBar1->textWidth() <= width()) {
            return;
        }
    }
}

void TfrmMAIN000::showCompanyLogo() {
    imgCompany->hide();
    if (!sld_LoadSmallImage("IMGLOGO")) {
        return;
    }
    const QImage logo = QImage::fromData(gImageStream);
    if (logo.isNull()) {
        sfg_DisplayBar("Warn", tr("The company logo is not a picture."), *MessageStatusBar, 2);
        return;
    }
    imgCompany->setImage(logo);
    // Between the menu, which does not move, and the bars.
    const int room = height() - underLogo - pnlMainMenu->geometry().bottom() - 8;
    const QSize largest(largestLogo.width(), std::clamp(room, leastLogo, largestLogo.height()));
    imgCompany->resize(logo.size().boundedTo(largest) == logo.size()
                           ? logo.size()
                           : logo.size().scaled(largest, Qt::KeepAspectRatio));
    imgCompany->show();
    update();
}

void TfrmMAIN000::showBranchBand() {
    xSYS161_ = sfvel_GetParam("SYS", 161);
    if (xSYS161_ == QLatin1String("N")) {
        imgMain->hide();
    }
    xCO85_ = sfvel_GetParam("CO", 85);
    if (xCO85_ != QLatin1String("Y")) {
        return;
    }
    lblBranchColor->setText(gBRName);
    const QColor color = sfg_StringToColor(gBRStatusBarColor);
    QPalette colors = pnlBranchColor->palette();
    colors.setColor(QPalette::Window, color);
    pnlBranchColor->setPalette(colors);
    colors.setColor(QPalette::WindowText, velcro::ui::inkOn(color));
    lblBranchColor->setPalette(colors);
    pnlBranchColor->show();
}

// ---- menus ----

void TfrmMAIN000::enableMenu(Menu menu, bool xEnable) {
    for (const Group& group : groups_) {
        if (group.menu == menu) {
            group.button->setEnabled(xEnable);
            group.action->setEnabled(xEnable);
        }
    }
}

void TfrmMAIN000::Set_MainMenu(bool xEnable) {
    sfg_SetCursor("BUSY");
    pnlMainMenu->setColor(QColor(xEnable ? blue : grey));
    pnlMNUOrders->setColor(QColor(xEnable ? blue : grey));
    pnlMNUReports->setColor(QColor(xEnable ? green : grey));
    pnlMNUAdministration->setColor(QColor(xEnable ? red : grey));
    velcro::ui::pumpEvents();
    enableMenu(Menu::Main, xEnable);
    velcro::ui::pumpEvents();
    sfg_SetCursor("RESET");
}

void TfrmMAIN000::setSubMenu(CaptionPanel& panel, const QPoint& place, Menu menu, bool xEnable) {
    sfg_SetCursor("BUSY");
    panel.move(place);
    panel.setColor(QColor(menu == Menu::Reports ? green : red));
    panel.setVisible(xEnable);
    panel.raise();
    enableMenu(menu, xEnable);
    sfg_SetCursor("RESET");
}

void TfrmMAIN000::Set_ReportsMenu(bool xEnable) {
    setSubMenu(*pnlReports, reportsPlace, Menu::Reports, xEnable);
}

void TfrmMAIN000::Set_ConfigurationMenu(bool xEnable) {
    setSubMenu(*pnlADMConfiguration, configurationPlace, Menu::Configuration, xEnable);
}

void TfrmMAIN000::btnMNUReportsClick() {
    Set_MainMenu(false);
    Set_ReportsMenu(true);
}

void TfrmMAIN000::btnREPExitClick() {
    Set_ReportsMenu(false);
    Set_MainMenu(true);
}

void TfrmMAIN000::btnMNUConfigurationClick() {
    Set_MainMenu(false);
    Set_ConfigurationMenu(true);
}

void TfrmMAIN000::btnCFGExitClick() {
    Set_ConfigurationMenu(false);
    Set_MainMenu(true);
}

void TfrmMAIN000::showScreen(const MenuScreens::Maker& maker) {
    if (!maker) {
        sfg_InfoDlg(tr("This screen is not part of this version."), 0);
        return;
    }
    const auto screen = maker(this);
    velcro::ui::runModal(*screen);
}

void TfrmMAIN000::openCodeTable(const MenuScreens::Maker& maker) {
    pnlMainMenu->hide();
    Set_ConfigurationMenu(false);
    guarded([this, &maker] { showScreen(maker); });
    pnlMainMenu->show();
    Set_ConfigurationMenu(true);
}

void TfrmMAIN000::btnMNURepairsOrdersClick() {
    showScreen(gMenuScreens.repairOrders);
}

void TfrmMAIN000::btnCFGSystemCodesClick() {
    openCodeTable(gMenuScreens.systemCodes);
}

void TfrmMAIN000::btnCFGTechniciansClick() {
    openCodeTable(gMenuScreens.technicians);
}

void TfrmMAIN000::btnCFGProcessCodesClick() {
    openCodeTable(gMenuScreens.processCodes);
}

void TfrmMAIN000::btnMNUExitClick() {
    if (sfg_QuestionDlg("Confirm Exit", "Are you sure you want to exit the Customer Repair Orders "
                                        "module?")) {
        close();
    }
}

// ---- watch ----

void TfrmMAIN000::ExeIdleLock() {
    sfg_Application_ShutDown();
    if (closed_) {
        return;
    }
    ExeIdle->UnLock();
    setWindowState(Qt::WindowMaximized);
}

void TfrmMAIN000::Check_EndOfDay_Progress() {
    const bool running = sfvel_Check_DayEnd_Progress();
    if (running) {
        sfg_DisplayBar("Msg", "*Day-End Running", *MessageStatusBar, 1);
    } else {
        sfg_ResetStatusBar(*MessageStatusBar, 1);
    }
    gEODInitiated = running ? "Y" : "N";
}

// ---- form ----

void TfrmMAIN000::FormPaint() {
    QPainter painter(this);
    painter.fillRect(rect(), QColor(background));
    imgVelmara->move(width() / 2 - 250, 110);
    imgCompany->move(20, height() - (imgCompany->height() + underLogo));
}

void TfrmMAIN000::paintEvent(QPaintEvent* /*event*/) {
    guarded([this] { FormPaint(); });
}

void TfrmMAIN000::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    imgMain->setGeometry(rect());
    pnlBranchColor->setGeometry(0, 0, width(), 52);
    const int bar = StatusBar1->height();
    MessageStatusBar->setGeometry(0, height() - 2 * bar, width(), bar);
    StatusBar1->setGeometry(0, height() - bar, width(), bar);
    fitFacts();
    update();
}

void TfrmMAIN000::closeEvent(QCloseEvent* event) {
    guarded([this] { FormClose(); });
    event->accept();
}

void TfrmMAIN000::FormClose() {
    if (std::exchange(closed_, true)) {
        return;
    }
    ExeIdle->setEnabled(false);
    if (gData) {
        gData->Close_Query_VEL();
    }
    if (cData) {
        cData->CloseDB_Common();
    }
    if (tData) {
        tData->Close_Query_TIL();
    }
    QCoreApplication::exit(exitStatus_);
}
