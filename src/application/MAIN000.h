// TfrmMAIN000, the main form: the menu that all work is opened from, its two status bars, and the
// watch over an idle seat. It holds no business logic.
#pragma once

#include "application/MenuScreens.h"
#include "ui/CaptionPanel.h"
#include "ui/IdleLock.h"
#include "ui/MenuTile.h"
#include "ui/PictureBox.h"
#include "ui/StatusBar.h"

#include <QWidget>

#include <functional>
#include <vector>

class QAction;
class QLabel;

class TfrmMAIN000 : public QWidget
{
    Q_OBJECT

public:
    /// start runs everything up to the signed-in user; false ends the program. See StartUp.h.
    explicit TfrmMAIN000(std::function<bool()> start);
    ~TfrmMAIN000() override;

    void Initialize_MainForm();
    void Set_MainMenu(bool xEnable);
    void Set_ReportsMenu(bool xEnable);
    void Set_ConfigurationMenu(bool xEnable);
    void Check_EndOfDay_Progress();

    velcro::ui::StatusBar* StatusBar1 = nullptr;
    velcro::ui::StatusBar* MessageStatusBar = nullptr;
    velcro::ui::IdleLock* ExeIdle = nullptr;
    /// 0, or 1 when the program ended before its menu was live.
    int exitStatus() const { return exitStatus_; }

signals:
    /// The user is signed in and the menu takes work.
    void menuIsLive();

protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    enum class Menu { Main, Reports, Configuration };
    // The panels of the menu do not move.
    static constexpr QPoint reportsPlace{198, 230};
    static constexpr QPoint configurationPlace{198, 321};
    struct Entry; // one button and its key; the table stands in MAIN000Menu.cpp
    struct Group
    {
        Menu menu;
        QPushButton* button;
        QAction* action;
        const char* keyCap;
    };

    // What the form is made of (MAIN000Menu.cpp).
    static const std::vector<Entry>& entries();
    void makeBackground();
    void makeBars();
    void makeMenus();
    void makeMainMenu(const QSize& tile, int caption);
    velcro::ui::CaptionPanel* makeSubMenu(Menu menu, const QString& name, const QString& caption,
                                          const QSize& tile, int columns);
    velcro::ui::CaptionPanel* makeGroup(const QString& name, const QString& caption, int height);
    velcro::ui::MenuTile* makeTile(const Entry& entry, const QSize& size);
    void addTiles(velcro::ui::CaptionPanel& panel, const QStringList& names, int columns,
                  const QSize& tile);
    QSize tileSize() const;

    void FormShow();
    void showKeyCaps();
    void finishStart();
    void endFailedStart();
    void FormPaint();
    void FormClose();
    void ExeIdleLock();

    void showFacts();
    void fitFacts();
    void showCompanyLogo();
    void showBranchBand();
    void enableMenu(Menu menu, bool xEnable);
    void setSubMenu(velcro::ui::CaptionPanel& panel, const QPoint& place, Menu menu, bool xEnable);
    void openCodeTable(const MenuScreens::Maker& maker);
    void showScreen(const MenuScreens::Maker& maker);

    void btnMNURepairsOrdersClick();
    void btnMNUReportsClick();
    void btnMNUConfigurationClick();
    void btnMNUExitClick();
    void btnREPExitClick();
    void btnCFGSystemCodesClick();
    void btnCFGTechniciansClick();
    void btnCFGProcessCodesClick();
    void btnCFGExitClick();

    std::function<bool()> start_;
    bool started_ = false;
    bool closed_ = false;
    int exitStatus_ = 1;
    QString startDate_; // today, when the menu went live
    QString xSYS161_, xCO85_;
    std::vector<Group> groups_;

    velcro::ui::PictureBox* imgMain = nullptr;
    velcro::ui::PictureBox* imgVelmara = nullptr;
    velcro::ui::PictureBox* imgCompany = nullptr;
    velcro::ui::CaptionPanel* pnlMainMenu = nullptr;
    velcro::ui::CaptionPanel* pnlMNUOrders = nullptr;
    velcro::ui::CaptionPanel* pnlMNUReports = nullptr;
    velcro::ui::CaptionPanel* pnlMNUAdministration = nullptr;
    velcro::ui::CaptionPanel* pnlReports = nullptr;
    velcro::ui::CaptionPanel* pnlADMConfiguration = nullptr;
    QWidget* pnlBranchColor = nullptr;
    QLabel* lblBranchColor = nullptr;
};
