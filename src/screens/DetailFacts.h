// What a detail screen states of itself: its controls in reading order, what must hold of them, and
// which columns its statements write.
#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

/// What a control has beyond its name and label.
struct FieldOptions
{
    bool beside = false;    // to the right of the control before it instead of below
    int width = 20;         // letters that are seen at once
    int limit = 0;          // letters that can be typed; 0 is no limit
    bool upperCase = false; // also what is pasted
    bool readOnly = false;  // shown, never typed into
    bool key = false;       // of the row: cannot be changed once the row is there
    bool browse = false;    // has a button that opens a selection; a LookUp answers it
    bool today = false;     // a date that begins as the server's
    int decimals = 2;       // of an amount; the screen may set others later
    bool loads = true;      // false: the control does not take its column from the row
    QString emptyText = {};
    const char* column = nullptr; // where it is another than the control's name says
};

/// A control of the form, a note, or the beginning of a page or group. Made by the functions of namespace field.
struct DetailField
{
    enum class Kind {
        Page,
        Group,
        GroupBeside,
        Note,
        Text,
        Date,
        Amount,
        Combo,
        Codes,
        Toggle,
        Memo,
        Other
    };

    Kind kind = Kind::Text;
    const char* name = nullptr; // object name of the control or page
    QString label;
    FieldOptions options = {};
    // Of a combo; of codes: key of the loader, and what it begins with; of a toggle: its captions.
    QStringList entries = {};
    std::function<QWidget*()> make = {}; // of any other control

    /// "edAccount" holds the column Account, "cmbReceiveMthd" the column ReceiveMthd.
    QString column() const;
};

namespace field {

/// A page behind a tab; what stands before the first page stays above them all.
DetailField page(const char* name, const QString& caption);
/// A group with its title, below the last one or beside it.
DetailField group(const QString& title);
DetailField groupBeside(const QString& title);
/// A text that explains the form.
DetailField note(const QString& text);
/// An edit of one line; a date; an amount; a text of several lines.
DetailField text(const char* name, const QString& label, FieldOptions options = {});
DetailField date(const char* name, const QString& label, FieldOptions options = {});
DetailField amount(const char* name, const QString& label, FieldOptions options = {});
DetailField memo(const char* name, const QString& label, FieldOptions options = {});
/// A choice of fixed entries. The column holds the code before the first "-" of an entry.
DetailField combo(const char* name, const QString& label, const QStringList& entries,
                  FieldOptions options = {});
/// The same, filled by sld_LoadCombo each time the screen is shown.
DetailField codes(const char* name, const QString& label, const QString& xTable,
                  const QString& xALL, FieldOptions options = {});
/// A switch. The column holds "Y" or "N".
DetailField toggle(const char* name, const QString& label, const QString& onCaption,
                   const QString& offCaption, FieldOptions options = {});
/// A control of the screen's own, such as a grid, that takes the room its page has left.
DetailField other(const char* name, const QString& accessibleName, std::function<QWidget*()> make);

} // namespace field

/// What must hold before a row is saved. The checks run in their order; the first that fails shows
/// its refusal and gives the focus to the control, or to another one.
struct FieldCheck
{
    const char* control;
    bool (*passes)(const QString& value); // of the value that goes into the column
    QString refusal;
    const char* focus = nullptr;
};

// The tests of a check. A field that must be filled is marked on the form.
bool isFilled(const QString& value);   // blanks count
bool isNotBlank(const QString& value); // blanks do not
bool isNotZero(const QString& value);  // of an amount
bool isPhone(const QString& value);
bool isPhoneOrEmpty(const QString& value);
bool isEMailOrEmpty(const QString& value);

/// A column that no control holds, and where its value comes from when the row is saved.
struct ColumnValue
{
    const char* column;
    std::function<QString()> value;
};
/// The value of such a column that is always the same.
std::function<QString()> always(const QString& value);

/// The columns that no other row may have the same values in. Checked before an add.
struct UniqueKey
{
    const char* columns = ""; // blank-separated; none: nothing is checked
    QString refusal = {};
    const char* focus = nullptr;
    QString hint = {}; // of the table, when the check is to wait for nobody: " WITH (NOLOCK)"
};

struct DetailFacts
{
    QString unit;    // "CRO100A"
    QString caption; // title of the window
    QString saveCaption;
    QString deleteCaption = QStringLiteral("DELETE");
    const char* table;
    QString errorNo;        // of the error dialog when the row cannot be read
    QString errorText = {}; // before the reason; none: "SQL Error reading object ..."
    std::vector<DetailField> fields;
    std::vector<FieldCheck> checks = {};
    UniqueKey unique = {};
    // The columns of INSERT and UPDATE in the order in which they are sent, blank-separated. Each is
    // CO or Branch of the session, held by a control, or stated among the values.
    const char* inserts;
    const char* updates;
    std::vector<ColumnValue> values = {};
    bool stamped = false;        // both statements end with the stamp of the last change
    bool validatesDelete = true; // a row is checked before it is deleted
    bool keyCapsBySeat = false;  // no pictures of keys on a seat that is worked by touch alone
    const char* firstInUpdate = nullptr; // control with the focus; none: the first changeable one
    QString addedText = {};              // said after an add; %1 is what the next control holds
    const char* numberControl = nullptr;
};
