#include "screens/ListScreen.h"

#include "data/Errors.h"
#include "data/Prompts.h"
#include "screens/GridPrint.h"
#include "ui/Modal.h"

#include <QApplication>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>

using velcro::ui::RowGrid;

ListScreen::ListScreen(ListFacts facts, Connection& connection, QWidget* parent)
    : Screen(facts.unit, facts.caption, parent)
    , facts_(std::move(facts))
    , query_(connection) {
    makePanel();
    bindKey(Qt::Key_Escape, this, [this] { acCancelExecute(); });
}

void ListScreen::BuildGrid(const QString& xSQL) {
    try {
        readList(xSQL);
    } catch (const std::exception& error) {
        readFailed(error);
        if (raisesReadFailure()) {
            throw;
        }
    }
}

void ListScreen::readList(const QString& xSQL) {
    beforeRead(xSQL);
    query_.setText(statementLines(xSQL));
    grid_->setRows(query_.rows());
    showRowCount();
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const auto restoreCursor = qScopeGuard([] { QApplication::restoreOverrideCursor(); });
    query_.Open();
    grid_->setRows(query_.rows());
    showRowCount();
    grid_->setFocus();
}

void ListScreen::readFailed(const std::exception& error) {
    sfg_ErrorDlg(facts_.errorNo, facts_.errorText + QLatin1Char('\r') + errorText(error),
                 unitName(), QStringLiteral("BuildGrid"));
}

void ListScreen::showRowCount() {
    const int count = query_.RecordCount();
    rowCount_->setText(count == 1 ? QStringLiteral("1 row")
                                  : QLocale().toString(count) + QStringLiteral(" rows"));
}

void ListScreen::showForCurrent(const std::function<void(int xRecID)>& show) {
    if (!hasCurrentRecord()) {
        return;
    }
    const int wRecID = query_.FieldByName(QStringLiteral("RecID")).AsInteger();
    show(wRecID);
    BuildGrid();
    grid_->locate(QStringLiteral("RecID"), QString::number(wRecID));
}

void ListScreen::rowChosen() {
    if (mainButton_ != nullptr) {
        mainButton_->click();
    }
}

void ListScreen::btnLookupClick() {
    pnlSearch->show();
    edSearchText->selectAll();
    edSearchText->setFocus();
}

void ListScreen::btnSearchClick() {
    const auto text = edSearchText->text();
    if (text.trimmed().isEmpty()) {
        return;
    }
    QString xSQL;
    for (const auto& fragment : facts_.searchFragments) {
        xSQL += fragment + text + QStringLiteral("%'");
    }
    pnlSearch->hide();
    BuildGrid(xSQL + facts_.searchEnd);
}

void ListScreen::hideSearch() {
    pnlSearch->hide();
    grid_->setFocus();
}

void ListScreen::acCancelExecute() {
    if (pnlSearch != nullptr && pnlSearch->isVisible()) {
        hideSearch();
    } else {
        reject();
    }
}

void ListScreen::btnPrintClick() {
    velcro::ui::GridPrinter printer(*grid_);
    sfvel_GridPrintTitle(printer, unitName() + QStringLiteral(" - ") + windowTitle(), QString());
    printer.preview(this);
}

void ListScreen::FormShow() {
    BuildGrid();
}

void ListScreen::done(int result) {
    query_.Close();
    Screen::done(result);
}

void MaintenanceList::ShowDetailForm(int xFunction) {
    if (xFunction != 1) {
        showForCurrent([&](int xRecID) { openDetail(xFunction, xRecID); });
        return;
    }
    openDetail(xFunction, 0);
    BuildGrid();
}

void MaintenanceList::addMaintenance(const Captions& captions, const QString& updateKeyCap) {
    using velcro::ui::connectHandler;
    using velcro::ui::KeyButton;
    btnAdd = addOption(QStringLiteral("btnAdd"), captions.add, QStringLiteral("INS"));
    btnUpdate = addOption(QStringLiteral("btnUpdate"), captions.update, updateKeyCap);
    btnDelete = addOption(QStringLiteral("btnDelete"), captions.remove, QStringLiteral("DEL"));
    btnDelete->setRole(KeyButton::Role::Danger);
    connectHandler(btnAdd, &KeyButton::clicked, this, [this] { ShowDetailForm(1); });
    connectHandler(btnUpdate, &KeyButton::clicked, this, [this] { ShowDetailForm(2); });
    connectHandler(btnDelete, &KeyButton::clicked, this, [this] { ShowDetailForm(3); });
    bindKey(Qt::Key_Insert, btnAdd);
    bindKey(Qt::Key_Delete, btnDelete);
}
