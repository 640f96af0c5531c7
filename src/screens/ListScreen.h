// The pattern of the list screens: a query of their own in a grid, with buttons and keys to move in
// it, to search it, to print it and to open what stands behind a row. A concrete list states facts.
#pragma once

#include "data/Statement.h"
#include "screens/Screen.h"
#include "ui/RowGrid.h"

#include <QStringList>

#include <functional>
#include <vector>

class QFrame;
class QGridLayout;
class QHBoxLayout;
class QLabel;
class QLineEdit;

/// What a concrete list states of itself.
struct ListFacts
{
    QString unit;    // "CRO100"
    QString caption; // title of the window
    QString errorNo; // number of the error dialog when the read fails
    QString errorText;
    std::vector<velcro::ui::GridColumn> columns; // in view order
    /// Each stands before the text that is searched for; none: the screen has no search panel.
    QStringList searchFragments = {};
    QString searchEnd = {}; // what follows the search, such as an ordering
};

class ListScreen : public Screen
{
    Q_OBJECT

public:
    ListScreen(ListFacts facts, Connection& connection, QWidget* parent);

    /// Reads the list anew; xSQL is extra text for the statement, blank for the whole list. A
    /// failure is shown and, unless the screen says otherwise, thrown on.
    void BuildGrid(const QString& xSQL = {});

    velcro::ui::RowGrid& grid() { return *grid_; }
    const ListFacts& facts() const { return facts_; }

protected:
    /// The statement, line by line.
    virtual QStringList statementLines(const QString& xSQL) const = 0;
    virtual bool raisesReadFailure() const { return true; }
    /// Before the list is read with this extra text.
    virtual void beforeRead(const QString& /*xSQL*/) {}
    /// Enter on a row, and double click.
    virtual void rowChosen();
    /// Enter in the search text.
    virtual void searchEntered() { btnSearchClick(); }

    bool hasCurrentRecord() const { return grid_->currentResultRow().has_value(); }
    /// The record the user stands on.
    Statement& query() { return query_; }
    const Statement& query() const { return query_; }
    /// Shows a screen for the current record; afterwards the list is read again and the record
    /// found again.
    void showForCurrent(const std::function<void(int xRecID)>& show);

    velcro::ui::KeyButton* addOption(const QString& name, const QString& caption,
                                     const QString& keyCap);
    velcro::ui::KeyButton* addFunction(const QString& name, const QString& caption,
                                       const QString& keyCap);
    /// Enter in the grid and a double click press this one.
    void setMainButton(velcro::ui::KeyButton* button);
    velcro::ui::KeyButton* mainButton() { return mainButton_; }
    /// Search, restore and print with their keys; what a screen lacks it leaves out.
    void addSearch(const QString& keyCap);
    void addRestore(const QString& keyCap, const QKeySequence& key);
    void addPrint();

    void btnLookupClick();
    void btnSearchClick();
    void btnPrintClick();
    void acCancelExecute();

    void FormShow() override;
    void done(int result) override;

    QFrame* pnlSearch = nullptr;
    QLineEdit* edSearchText = nullptr;
    velcro::ui::KeyButton* btnRestoreGrid = nullptr;
    velcro::ui::KeyButton* btnSearch = nullptr;

private:
    void makePanel();
    void makeGrid();
    void makeSearchPanel();
    void makeGridMenu();
    QHBoxLayout* makeNavigation();
    velcro::ui::KeyButton* addToPanel(int position, const QString& name, const QString& caption,
                                      const QString& keyCap);
    void hideSearch();
    void showRowCount();
    void readList(const QString& xSQL);
    void readFailed(const std::exception& error);

    ListFacts facts_;
    Statement query_;
    velcro::ui::RowGrid* grid_ = nullptr;
    QFrame* panel_ = nullptr;
    QLabel* functionsHeading_ = nullptr;
    QLabel* rowCount_ = nullptr;
    velcro::ui::KeyButton* mainButton_ = nullptr;
};

/// A list whose rows are added, changed and deleted in a detail screen: Insert, the row's own key and
/// Delete.
class MaintenanceList : public ListScreen
{
    Q_OBJECT

public:
    using ListScreen::ListScreen;

    /// Opens the detail screen: 1 add, 2 update, 3 delete; the last two need a current record.
    virtual void ShowDetailForm(int xFunction);

protected:
    /// Shows the detail screen modally and frees it.
    virtual void openDetail(int xFunction, int xRecID) = 0;

    struct Captions
    {
        QString add;
        QString update;
        QString remove;
    };
    void addMaintenance(const Captions& captions, const QString& updateKeyCap);

    velcro::ui::KeyButton* btnAdd = nullptr;
    velcro::ui::KeyButton* btnUpdate = nullptr;
    velcro::ui::KeyButton* btnDelete = nullptr;
};
