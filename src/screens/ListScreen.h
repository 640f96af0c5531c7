// The pattern of the list screens: a query of their own in a grid, with buttons and keys to move in
// it, to search it, to print it and to open what stands behind a row. A concrete list states facts.
#pragma once

#include "data/Statement.h"
#include "screens/Screen.h"
#include "ui/Modal.h"
#include "ui/RowGrid.h"

#include <functional>
#include <vector>

class ButtonPanel;
class QBoxLayout;
class QVBoxLayout;
class RecordBar;
class SearchPanel;

/// What the user is told when the list cannot be read.
struct ListFailure
{
    enum class Then { Raises, GoesOn };

    QString number; // of the error dialog
    QString text;
    Then then = Then::Raises; // after the dialog
    bool tellsReason = true;  // the text goes on with a carriage return and what the server said
};

/// A search in a list; without terms it has none.
struct ListSearch
{
    QStringList terms = {};            // each stands before the text that is searched for
    QString end = {};                  // what follows them, such as an ordering
    bool onLeaving = false;            // leaving the text searches too, but by Esc
    int cap = 0;                       // most rows that a search brings; 0: all
    QList<QKeySequence> alsoKeys = {}; // run the search, beside Ctrl+S
};

/// What a concrete list states of itself.
struct ListFacts
{
    QString unit;    // "CRO100"
    QString caption; // title of the window
    ListFailure failure;
    std::vector<velcro::ui::GridColumn> columns; // in view order
    /// What the result holds besides; a user may show it in his own layout.
    std::vector<velcro::ui::GridColumn> hidden = {};
    ListSearch search = {};
    int cap = 0;             // most rows that the whole list brings; 0: all
    QString statusCode = {}; // in the status bar, when it is not the unit
    QString spokenBy = {};   // field that a screen reader tells a row by; none: the first column
};

/// The buttons of a list, top to bottom.
struct ListButtons
{
    QList<ButtonFacts> options;
    QList<ButtonFacts> functions = {};
    QString closeName = QStringLiteral("btnCancel");
    QString closeCaption = QStringLiteral("Close Window");
};

class ListScreen : public Screen
{
    Q_OBJECT

public:
    ListScreen(ListFacts facts, Connection& connection, QWidget* parent);

    /// Reads the list anew; xSQL is extra text for the statement, blank for the whole list. A
    /// failure is shown and, as the screen states, thrown on.
    void BuildGrid(const QString& xSQL = {});

    velcro::ui::RowGrid& grid() { return *grid_; }
    const ListFacts& facts() const { return facts_; }

protected:
    /// The statement, line by line.
    virtual QStringList statementLines(const QString& xSQL) const = 0;
    /// whole: there is no search.
    virtual void beforeRead(bool /*whole*/) {}
    /// The rows are there; the user stands on the first one.
    virtual void afterRead() {}
    /// Enter on a row, and double click: presses the button whose key is Enter.
    virtual void rowChosen();
    /// A click or a tap on a row, which is the current record then.
    virtual void rowClicked() {}
    /// Enter in the search text.
    virtual void searchEntered() { btnSearchClick(); }

    /// Call once, in the constructor.
    void setButtons(const ListButtons& buttons);
    ButtonFacts searchButton();
    ButtonFacts restoreButton(const QList<QKeySequence>& alsoKeys = {});
    ButtonFacts printButton();

    /// Room above the grid and to the right of it, for a form of the screen's own.
    QWidget& above();
    QWidget& beside();

    bool hasCurrentRecord() const { return grid_->currentResultRow().has_value(); }
    /// The record the user stands on.
    Statement& query() { return query_; }
    const Statement& query() const { return query_; }
    QString currentText(const char* field) const; // blank without one
    /// Shows a screen for the current record, if there is one; afterwards the list is read again and
    /// the row found again that has the same value in the field.
    void showForCurrent(const std::function<void(int xRecID)>& show,
                        const QString& locateBy = QStringLiteral("RecID"));

    void btnLookupClick();
    void btnSearchClick();
    void btnPrintClick();
    void acCancelExecute();

    void FormShow() override;
    void done(int result) override;

private:
    void makePanel();
    void makeRight();
    void makeGrid();
    void makeSearchPanel();
    void makeGridMenu();
    void orderTabs();
    void addToPanel(const ButtonFacts& facts);
    void hideSearch();
    void restoreLayout();
    void currentRecordChanged();
    void build(const QString& searchedFor, const QString& xSQL);
    void readList(const QString& searchedFor, QString xSQL);
    void readFailed(const std::exception& error);
    void showRows();
    QString whatIsShown() const;

    ListFacts facts_;
    Statement query_;
    SearchPanel* pnlSearch_ = nullptr; // none without search terms
    velcro::ui::RowGrid* grid_ = nullptr;
    QWidget* above_ = nullptr;
    QWidget* beside_ = nullptr;
    ButtonPanel* options_ = nullptr; // on the left
    QVBoxLayout* column_ = nullptr;  // search, what stands above, grid, navigation
    QBoxLayout* sides_ = nullptr;
    QBoxLayout* middle_ = nullptr; // the grid, and what stands beside it
    RecordBar* records_ = nullptr;
    velcro::ui::KeyButton* enterButton_ = nullptr;
    std::vector<velcro::ui::KeyButton*> recordButtons_;
    QString searchedFor_;          // blank while the whole list is shown
    std::optional<int> wholeRows_; // of the whole list, once it was read uncapped
};

/// A list whose rows are added, changed and deleted in a detail screen.
class MaintenanceList : public ListScreen
{
    Q_OBJECT

public:
    using ListScreen::ListScreen;

    /// Opens the detail screen: 1 add, 2 update, 3 delete; the last two need a current record.
    virtual void ShowDetailForm(int xFunction);

protected:
    /// Shows the detail screen; see showDetail.
    virtual void openDetail(int xFunction, int xRecID) = 0;

    ButtonFacts addButton(const QString& caption);
    ButtonFacts updateButton(const QString& caption, const QKeySequence& key = Qt::Key_Return);
    ButtonFacts deleteButton(const QString& caption);

    /// Shows a detail screen of this class modally and frees it. hand over: what it is given besides
    /// its mode and row.
    template <typename Detail>
    void showDetail(
        int xFunction, int xRecID, const std::function<void(Detail&)>& handOver = [](Detail&) {}) {
        Detail detail(this);
        detail.xFunction = xFunction;
        detail.xRecID = xRecID;
        handOver(detail);
        velcro::ui::runModal(detail);
        if constexpr (requires { detail.whatWasAdded(); }) {
            added_ = detail.whatWasAdded();
        }
    }

private:
    QString added_; // what is said of the row that was added last
};
