// The pattern of the detail screens: adds, changes or deletes one row, told by mode and row id. A
// concrete screen states facts, and adds what differs.
#pragma once

#include "screens/DetailForm.h"
#include "screens/LookUp.h"
#include "screens/Screen.h"

class DetailScreen : public Screen
{
    Q_OBJECT

public:
    int xFunction = 1; // 1 add, 2 update, 3 delete
    int xRecID = 0;    // RecID of the row; 0 in add mode

    DetailScreen(DetailFacts facts, QWidget* parent);

    const DetailFacts& facts() const { return facts_; }
    const DetailForm& form() const { return *form_; }

    /// Shows an error in the status bar, marks the control until it is edited and gives it the focus,
    /// its page coming forward. False.
    bool refuse(QWidget* control, const QString& message);
    /// Takes message and mark away.
    void clearRefusal();
    /// The user has changed something: leaving without a save asks first. Happens by itself for all
    /// stated controls but those of the screen's own.
    void touch() { touched_ = true; }
    /// What the list below says once a row was added; blank when none was.
    QString whatWasAdded() const { return added_; }
    /// To the next control, as Enter leads.
    void goOn() { focusNextChild(); }

protected:
    bool adding() const { return xFunction == 1; }
    bool deleting() const { return xFunction == 3; }

    /// Holds the form; disabled in delete mode.
    QWidget* pnlMain = nullptr;
    velcro::ui::KeyButton* btnSave = nullptr;
    velcro::ui::KeyButton* btnCancel = nullptr;
    velcro::ui::KeyButton* btnKeyboard = nullptr;

    /// A control by its name, for what the screen does with it beyond the stated.
    template <typename Control = QLineEdit>
    Control* control(const char* name) const {
        return qobject_cast<Control*>(&form_->control(QString::fromLatin1(name)));
    }
    /// Gives the edit the behaviour of a look-up.
    void lookUp(const char* name, LookUp::Rules rules);

    /// Puts defaults into the controls, before the row is loaded.
    virtual void setDefaults();
    /// The lines that read the row.
    virtual QStringList selectLines() const;
    /// What a screen does before the controls are filled from its row, and beyond filling them.
    virtual void rowRead(const Statement& /*row*/) {}
    virtual void rowLoaded(const Statement& /*row*/) {}
    /// Whether the values may be saved; otherwise the reason is shown and its control has the focus.
    virtual bool Validation();
    /// Put their statements into the statement buffer and run nothing.
    virtual void AddData();
    virtual void UpdateData();
    virtual void DeleteData();
    /// What a screen does between the save and its closing.
    virtual void afterSave() {}

    // What Validation is made of.
    /// The stated checks; the dates, each after its own check or at the end.
    bool checksPass();
    /// Takes the next number of a series of module "CRO" into the edit. Every call uses one up.
    bool takeNumber(const char* name, const QString& xTxTp, const QString& errorText);
    /// In add mode: no other row has the same key.
    bool isUnique();

    /// Loads the row into the controls. When it cannot be read that is shown, and nothing is saved.
    void ExtractData();
    /// What the screen shows is not the row: switches the save off and says so. Also happens by
    /// itself when the defaults or the row cannot be read.
    void saveNothing();
    /// The key of the row cannot be changed: read-only, without tab stop and button, in its own
    /// colour.
    void lockKey(QLineEdit* edit);

    void FormShow() override;
    /// Esc and the window's frame.
    void reject() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makeForm();
    void makeButtons();
    void btnSaveClick();
    void showMode();
    void lockKeys();
    void focusFirst();
    void collect();
    void enterPressed(const QObject* control);
    bool dateCanBeRead(QWidget& control);
    void watch(const DetailForm::Field& field);
    void edited(const QWidget* control);

    DetailFacts facts_;
    std::unique_ptr<DetailForm> form_;
    QWidget* offending_ = nullptr;
    QString added_; // is said by the list below
    bool touched_ = false;
};
