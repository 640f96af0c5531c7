// The pattern of the detail screens: adds, changes or deletes one row, told by mode and row id. A
// concrete screen declares its controls and states what differs.
#pragma once

#include "screens/Screen.h"
#include "ui/FormBuilder.h"

#include <vector>

class QLineEdit;
class Statement;

class DetailScreen : public Screen
{
    Q_OBJECT

public:
    int xFunction = 1; // 1 add, 2 update, 3 delete
    int xRecID = 0;    // RecID of the row; 0 in add mode

    DetailScreen(const QString& unit, const QString& caption, const QString& saveCaption,
                 QWidget* parent);

protected:
    bool adding() const { return xFunction == 1; }
    bool deleting() const { return xFunction == 3; }

    /// Where the form goes; disabled in delete mode.
    QWidget* pnlMain = nullptr;
    velcro::ui::KeyButton* btnSave = nullptr;
    velcro::ui::KeyButton* btnCancel = nullptr;
    velcro::ui::KeyButton* btnKeyboard = nullptr;

    /// Puts defaults into the controls, before the row is loaded.
    virtual void setDefaults() {}
    /// Loads the row into the controls.
    virtual void ExtractData() = 0;
    /// Whether the values may be saved; otherwise the reason is shown and its control has the
    /// focus.
    virtual bool Validation() = 0;
    /// Put their statements into the statement buffer and run nothing.
    virtual void AddData() = 0;
    virtual void UpdateData() = 0;
    virtual void DeleteData() = 0;
    /// Most screens check a row before they delete it.
    virtual bool validatesDelete() const { return true; }
    /// What a screen does between the save and its closing.
    virtual void afterSave() {}

    /// What the screen shows is not the row: switches the save off and says so. Also happens by
    /// itself when setDefaults or ExtractData throws.
    void saveNothing();
    /// Shows an error in the status bar, marks the control and gives it the focus.
    bool refuse(QWidget* control, const QString& message);
    /// Takes message and mark away.
    void clearRefusal();
    /// The key of the row cannot be changed: read-only, without tab stop, in its own colour.
    void lockKey(QLineEdit* edit);
    /// Enter moves on to the next control. Edits that do something of their own on Enter are left
    /// out. Call it when all controls are declared.
    void moveOnWithEnter(const std::vector<QWidget*>& except = {});
    /// The first control of add mode, and of update mode.
    void setFirstControl(QWidget* control) { firstControl_ = control; }

    void FormShow() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makeButtons(const QString& saveCaption);
    void btnSaveClick();
    void showMode();
    void collect();
    void enterPressed(const QObject* control);
    void watchDates();
    bool datesCanBeRead();

    QWidget* firstControl_ = nullptr;
    QWidget* offending_ = nullptr;
};
