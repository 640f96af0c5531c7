// Declares the controls of a form in reading order: pages, groups, labels on the left, edits of the
// width of what goes in. Every control gets its member's name, an accessible name, and its label as
// buddy.
#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

#include <vector>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QGroupBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QTabWidget;
class QToolButton;
class QVBoxLayout;

namespace velcro::ui {

class AmountEdit;
class DateEdit;
class Toggle;

/// What differs from a plain edit of twenty letters.
struct EditOptions
{
    int width = 20; // letters that are seen at once
    int limit = 0;  // letters that can be typed; 0 is no limit
    bool upperCase = false;
    bool readOnly = false;
    bool password = false;
    QString emptyText = {};
};

/// Brings the page forward that the control lies on, and the page that this one lies on.
void bringForward(QWidget& control);

/// Rows go below each other in the group that was begun last, or, with no group, in one without a
/// frame. Tab follows the order of declaration.
class FormBuilder
{
public:
    /// Lays the page out; give it no other layout.
    explicit FormBuilder(QWidget* page);

    /// Begins a page behind a tab; the first one begins the pager, below what stands so far. Its
    /// name is "MainPager".
    QWidget* page(const QString& name, const QString& caption);
    /// Begins a titled group below the last one, or beside it.
    QGroupBox* group(const QString& title);
    QGroupBox* groupBeside(const QString& title);
    /// The next control stands to the right of the last one instead of below it.
    FormBuilder& beside();

    QLineEdit* edit(const QString& name, const QString& label, const EditOptions& options = {});
    /// With a button that opens a calendar.
    DateEdit* date(const QString& name, const QString& label);
    QComboBox* combo(const QString& name, const QString& label, const QStringList& entries = {},
                     int width = 20);
    /// An amount with so many decimals, which can be changed later.
    AmountEdit* amount(const QString& name, const QString& label, int decimals = 2,
                       bool readOnly = false);
    Toggle* toggle(const QString& name, const QString& label, const QString& onCaption,
                   const QString& offCaption);
    /// A text of several lines; Tab leaves it.
    QPlainTextEdit* memo(const QString& name, const QString& label, int lines = 4, int width = 40);
    QCheckBox* check(const QString& name, const QString& caption);
    /// Text that nobody types into, such as what a row holds already.
    QLabel* value(const QString& name, const QString& label, const QString& text = {});
    /// A text that explains the form.
    QLabel* note(const QString& text);
    /// A control that takes all the room its page has left, such as a grid.
    void fill(QWidget* widget, const QString& name, const QString& accessibleName);
    /// Any other control; a blank label lets it take the label's room too.
    void control(QWidget* widget, const QString& name, const QString& label);
    /// A button at the right end of an edit of this group, named btn + the edit's name.
    QToolButton* browseButton(QLineEdit* edit);

    /// Says at the label that the control must be filled.
    void markRequired(QWidget* control);
    /// Ends the form: labels in line, and room below the last group that grows with the window.
    void stretch();

private:
    QGroupBox* addGroup(const QString& title, bool besideLast);
    void newGrid(QWidget* owner);
    void newRows(QWidget* page);
    void endGroup();
    void endPage();
    QToolButton* buttonAfter(QLineEdit* edit, const QString& name, const QString& accessibleName,
                             const QString& icon);
    void place(QWidget* widget, const QString& label);
    void alignLabels();
    void shareRoom();

    struct Label
    {
        QLabel* label;
        QGridLayout* grid;
        int column;
    };

    QWidget* page_;
    QVBoxLayout* rows_ = nullptr;
    bool filled_ = false; // nothing is left of the page's room
    QTabWidget* pager_ = nullptr;
    std::vector<Label> labels_;
    QHBoxLayout* groups_ = nullptr; // the groups that stand beside each other
    QWidget* owner_ = nullptr;
    QGridLayout* grid_ = nullptr;
    int row_ = 0;
    int column_ = 0;
    bool beside_ = false;
    bool framed_ = false; // the grid is that of a titled group
};

} // namespace velcro::ui
