#include "screens/ListScreen.h"

#include "data/Errors.h"
#include "data/Prompts.h"
#include "data/SearchTerms.h"
#include "screens/GridLayouts.h"
#include "screens/GridPrint.h"
#include "screens/PrintPreview.h"
#include "screens/RecordBar.h"
#include "screens/SearchPanel.h"

#include <QApplication>
#include <QLocale>

using velcro::ui::RowGrid;
using namespace Qt::Literals::StringLiterals;

ListScreen::ListScreen(ListFacts facts, Connection& connection, QWidget* parent)
    : Screen(facts.unit, facts.caption, parent)
    , facts_(std::move(facts))
    , query_(connection) {
    if (!facts_.statusCode.isEmpty()) {
        StatusBar1().setPanelText(0, facts_.statusCode);
    }
    makePanel();
    makeRight();
    bindKey(Qt::Key_Escape, this, [this] { acCancelExecute(); });
}

void ListScreen::BuildGrid(const QString& xSQL) {
    build({}, xSQL);
}

void ListScreen::build(const QString& searchedFor, const QString& xSQL) {
    try {
        readList(searchedFor, xSQL);
    } catch (const std::exception& error) {
        readFailed(error);
        if (facts_.failure.then == ListFailure::Then::Raises) {
            throw;
        }
    }
}

void ListScreen::readList(const QString& searchedFor, QString xSQL) {
    const bool whole = searchedFor.isEmpty() && xSQL.trimmed().isEmpty();
    if (pnlSearch_ != nullptr) {
        pnlSearch_->hide(); // before the focus leaves it
    }
    resetStatusBar();
    beforeRead(whole);
    query_.setText({});
    searchedFor_ = searchedFor;
    showRows();
    if (!searchedFor.isEmpty()) {
        xSQL = searchTerms(facts_.search.terms, searchedFor) + facts_.search.end;
    }
    query_.setText(statementLines(xSQL));
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const auto restoreCursor = qScopeGuard([] { QApplication::restoreOverrideCursor(); });
    query_.Open();
    if (whole) {
        wholeRows_ = query_.RecordCount();
    }
    showRows();
    grid_->setFocus();
    afterRead();
}

void ListScreen::readFailed(const std::exception& error) {
    const auto& failure = facts_.failure;
    sfg_ErrorDlg(failure.number,
                 failure.tellsReason ? failure.text + u'\r' + errorText(error) : failure.text,
                 unitName(), u"BuildGrid"_s);
}

void ListScreen::showRows() {
    grid_->setRows(query_.rows());
    records_->setText(whatIsShown());
    currentRecordChanged();
}

QString ListScreen::whatIsShown() const {
    const int count = query_.RecordCount();
    const bool searched = !searchedFor_.isEmpty();
    const int cap = searched ? facts_.search.cap : facts_.cap;
    const auto number = [](int rows) { return QLocale().toString(rows); };
    QString text = number(count) + (count == 1 ? u" row"_s : u" rows"_s);
    if (cap > 0 && count >= cap) {
        text = u"the first %1 rows"_s.arg(number(count));
    } else if (searched && wholeRows_ > count && (facts_.cap == 0 || wholeRows_ < facts_.cap)) {
        text = u"%1 of %2 rows"_s.arg(number(count), number(*wholeRows_));
    }
    return searched ? text + u" for '%1'"_s.arg(searchedFor_) : text;
}

void ListScreen::currentRecordChanged() {
    if (const auto row = grid_->currentResultRow()) {
        query_.setRecNo(static_cast<int>(*row) + 1);
    }
    for (auto* button : recordButtons_) {
        button->setEnabled(hasCurrentRecord());
    }
}

QString ListScreen::currentText(const char* field) const {
    return hasCurrentRecord() ? query_.FieldByName(QString::fromLatin1(field)).AsString()
                              : QString();
}

void ListScreen::showForCurrent(const std::function<void(int xRecID)>& show,
                                const QString& locateBy) {
    if (!hasCurrentRecord()) {
        return;
    }
    const QString value = query_.FieldByName(locateBy).AsString();
    show(query_.FieldByName(u"RecID"_s).AsInteger());
    BuildGrid();
    grid_->locate(locateBy, value);
}

void ListScreen::rowChosen() {
    if (enterButton_ != nullptr) {
        enterButton_->click();
    }
}

void ListScreen::btnLookupClick() {
    pnlSearch_->open();
}

void ListScreen::btnSearchClick() {
    const QString text = pnlSearch_->text();
    if (text.trimmed().isEmpty()) {
        return;
    }
    build(text, {});
}

void ListScreen::hideSearch() {
    pnlSearch_->hide();
    grid_->setFocus();
}

void ListScreen::acCancelExecute() {
    if (pnlSearch_ != nullptr && pnlSearch_->isVisible()) {
        hideSearch();
    } else {
        reject();
    }
}

void ListScreen::btnPrintClick() {
    velcro::ui::GridPrinter printer(*grid_);
    sfvel_GridPrintTitle(printer, unitName() + u" - "_s + windowTitle(), QString());
    PrintPreview preview(
        unitName(), [&printer](QPrinter& paper) { printer.print(paper); }, this);
    velcro::ui::runModal(preview);
}

// A layout that cannot be read is no reason to keep the rows from the user.
void ListScreen::restoreLayout() {
    try {
        sfvel_LoadSavedGrid(*grid_, unitName());
    } catch (const std::runtime_error& error) {
        displayError(u"The saved grid layout could not be read: "_s + errorText(error));
    }
}

void ListScreen::FormShow() {
    orderTabs();
    restoreLayout();
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
    if (!added_.isEmpty()) {
        displayMessage(u"Msg"_s, std::exchange(added_, {}));
    }
}
