#include "screens/DetailScreen.h"

#include "data/DataUVEL.h"
#include "data/Errors.h"
#include "data/Prompts.h"
#include "data/Reading.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "data/SysLoadData.h"
#include "screens/SysFuncGlobal.h"
#include "ui/DateEdit.h"
#include "ui/Icons.h"
#include "ui/ScreenFit.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScopeGuard>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;
using velcro::ui::connectHandler;
using velcro::ui::DateEdit;
using velcro::ui::KeyButton;

namespace {

constexpr int margin = 10;

// The style sheet marks a control by this property; it must be applied anew when that changes.
void mark(QWidget* control, const char* property, bool on) {
    control->setProperty(property, on);
    control->style()->unpolish(control);
    control->style()->polish(control);
}

bool isChangeable(const QWidget& control) {
    return (control.focusPolicy() & Qt::TabFocus) != 0;
}

} // namespace

DetailScreen::DetailScreen(DetailFacts facts, QWidget* parent)
    : Screen(facts.unit, facts.caption, parent)
    , facts_(std::move(facts)) {
    makeForm();
    makeButtons();
    if (facts_.keyCapsBySeat) {
        hideKeyCapsBySeat();
    }
}

void DetailScreen::makeForm() {
    pnlMain = new QWidget;
    pnlMain->setObjectName(u"pnlMain"_s);
    auto* area = new velcro::ui::ScrollPage(pnlMain, this);
    area->setObjectName(u"scrMain"_s);
    body().addWidget(area, 1);
    form_ = std::make_unique<DetailForm>(facts_, pnlMain);
    for (const auto& field : form_->fields()) {
        watch(field);
    }
}

void DetailScreen::watch(const DetailForm::Field& field) {
    auto* control = field.control;
    const auto wasEdited = [this, control] { edited(control); };
    if (auto* edit = qobject_cast<QLineEdit*>(control)) {
        connectHandler(edit, &QLineEdit::textEdited, this, wasEdited);
    } else if (auto* combo = qobject_cast<QComboBox*>(control)) {
        connectHandler(combo, &QComboBox::activated, this, wasEdited);
    } else if (auto* button = qobject_cast<QAbstractButton*>(control)) {
        connectHandler(button, &QAbstractButton::clicked, this, wasEdited);
    } else if (auto* memo = qobject_cast<QPlainTextEdit*>(control)) {
        connectHandler(memo, &QPlainTextEdit::textChanged, this, [memo, wasEdited] {
            if (memo->document()->isModified()) { // and not filled by the program
                wasEdited();
            }
        });
    }
    if (auto* date = qobject_cast<DateEdit*>(control)) {
        connectHandler(date, &DateEdit::dateRefused, this, [this, date] {
            refuse(date, date->accessibleName() + u" is not a date. Type it as yyyy/mm/dd."_s);
        });
    }
    using Kind = DetailField::Kind;
    if (field.stated->kind != Kind::Memo && field.stated->kind != Kind::Other) {
        control->installEventFilter(this); // Enter leads on
    }
}

void DetailScreen::edited(const QWidget* control) {
    touch();
    if (control == offending_) {
        clearRefusal();
    }
}

void DetailScreen::reject() {
    if (touched_ && !deleting() && btnSave->isEnabled() &&
        !sfg_QuestionDlg(u"Close without saving?"_s, u"What was typed here will be lost."_s)) {
        return;
    }
    Screen::reject();
}

// Save stands at the bottom right, where the thumb is.
void DetailScreen::makeButtons() {
    btnKeyboard = makeKeyboardButton(*this);
    btnCancel = makeButton(*this, {.name = u"btnCancel"_s,
                                   .caption = u"Close Window"_s,
                                   .key = Qt::Key_Escape,
                                   .handler = [this] { reject(); },
                                   .hint = u"Close Window"_s});
    btnCancel->setSymbol(velcro::ui::icon(u"close"_s));
    btnSave = makeButton(*this, {.name = u"btnSave"_s,
                                 .caption = facts_.saveCaption,
                                 .key = Qt::Key_F10,
                                 .handler = [this] { btnSaveClick(); },
                                 .role = KeyButton::Role::Main});
    auto* row = new QHBoxLayout;
    row->setContentsMargins(margin, margin, margin, margin);
    row->setSpacing(margin);
    row->addWidget(btnKeyboard);
    row->addWidget(newTechHelpButton());
    row->addStretch(1);
    row->addWidget(btnCancel);
    row->addSpacing(margin);
    row->addWidget(btnSave);
    body().addLayout(row);
    // Enter that leads through the edits ends on the save and presses it.
    setTabOrder(btnSave, btnCancel);
    btnSave->installEventFilter(this);
}

void DetailScreen::lookUp(const char* name, LookUp::Rules rules) {
    new LookUp(*this, *control(name), std::move(rules));
}

void DetailScreen::FormShow() {
    // Before anything can fail: a delete must never look like a save.
    showMode();
    try {
        setDefaults();
        if (!adding()) {
            ExtractData();
            lockKeys();
        }
    } catch (...) {
        saveNothing();
        throw;
    }
    focusFirst();
}

void DetailScreen::showMode() {
    if (deleting()) {
        pnlMain->setEnabled(false);
        btnSave->setText(facts_.deleteCaption);
        btnSave->setAccessibleName(facts_.deleteCaption);
        btnSave->setRole(KeyButton::Role::Danger);
        resetStatusBar();
        displayError(u"Press [F10] to Delete"_s);
    }
}

void DetailScreen::setDefaults() {
    form_->setDefaults();
}

QStringList DetailScreen::selectLines() const {
    return {"SELECT * FROM " + QLatin1String(facts_.table),
            " WHERE [RecID] = " + QuotedStr(xRecID)};
}

void DetailScreen::ExtractData() {
    const auto text =
        facts_.errorText.isEmpty()
            ? u"SQL Error reading object \"%1\". Details: "_s.arg(QLatin1String(facts_.table))
            : facts_.errorText;
    const bool wasRead =
        readRows(gData->Velmara, selectLines(),
                 dialogAndFalse(facts_.errorNo, text + u'\r', unitName(), u"ExtractData"_s),
                 [this](const Statement& row) {
                     if (!row.IsEmpty()) {
                         rowRead(row);
                         form_->load(row);
                         rowLoaded(row);
                     }
                 });
    if (!wasRead) {
        saveNothing();
    }
}

void DetailScreen::lockKeys() {
    for (const auto& field : form_->fields()) {
        if (field.stated->options.key) {
            lockKey(qobject_cast<QLineEdit*>(field.control));
        }
    }
}

void DetailScreen::lockKey(QLineEdit* edit) {
    edit->setReadOnly(true);
    edit->setFocusPolicy(Qt::ClickFocus);
    mark(edit, "locked", true);
    if (auto* button = findChild<QToolButton*>(u"btn"_s + edit->objectName().mid(2))) {
        button->hide();
    }
}

void DetailScreen::focusFirst() {
    if (deleting() || !btnSave->isEnabled()) {
        (deleting() ? btnSave : btnCancel)->setFocus();
        return;
    }
    if (!adding() && facts_.firstInUpdate != nullptr) {
        control<QWidget>(facts_.firstInUpdate)->setFocus();
        return;
    }
    for (const auto& field : form_->fields()) {
        if (isChangeable(*field.control)) {
            field.control->setFocus();
            return;
        }
    }
}

void DetailScreen::saveNothing() {
    btnSave->setEnabled(false);
    displayError(u"Could not be read: nothing can be saved. Close and open again."_s);
    btnCancel->setFocus();
}

void DetailScreen::btnSaveClick() {
    if ((!deleting() || facts_.validatesDelete) && !Validation()) {
        return;
    }
    sfg_ClearSQL();
    collect();
    // A failed save has told of itself; the screen closes all the same.
    if (gData->vel_ExecSQL(1) && adding() && facts_.numberControl != nullptr) {
        added_ = facts_.addedText.arg(fieldValue(*control<QWidget>(facts_.numberControl)));
    }
    // The row is written: what fails from here on must not leave it to be saved once more.
    const auto close = qScopeGuard([this] { accept(); });
    afterSave();
}

void DetailScreen::collect() {
    if (adding()) {
        AddData();
    } else if (deleting()) {
        DeleteData();
    } else {
        UpdateData();
    }
}

bool DetailScreen::Validation() {
    return checksPass() && isUnique();
}

bool DetailScreen::checksPass() {
    clearRefusal();
    std::vector<QWidget*> unchecked;
    for (const auto& field : form_->fields()) {
        unchecked.push_back(field.control);
    }
    for (const auto& check : facts_.checks) {
        auto& checked = form_->control(QLatin1String(check.control));
        if (!check.passes(fieldValue(checked))) {
            const auto* focus = check.focus != nullptr ? check.focus : check.control;
            return refuse(control<QWidget>(focus), check.refusal);
        }
        if (!dateCanBeRead(checked)) {
            return false;
        }
        std::erase(unchecked, &checked);
    }
    return std::all_of(unchecked.begin(), unchecked.end(),
                       [this](QWidget* control) { return dateCanBeRead(*control); });
}

bool DetailScreen::dateCanBeRead(QWidget& control) {
    auto* date = qobject_cast<DateEdit*>(&control);
    return date == nullptr || date->tidy();
}

bool DetailScreen::takeNumber(const char* name, const QString& xTxTp, const QString& errorText) {
    auto* edit = control(name);
    edit->setText(sld_GenerateDocNo(gCO, gBranch, u"CRO"_s, xTxTp));
    edit->repaint();
    if (edit->text() == "0"_L1) {
        // Three screens tell their missing numbers by the same error number.
        sfg_ErrorDlg(u"100A-002"_s, errorText, unitName(), u"Validation"_s);
        return false;
    }
    return true;
}

bool DetailScreen::isUnique() {
    const auto columns = QString::fromLatin1(facts_.unique.columns).split(u' ', Qt::SkipEmptyParts);
    if (!adding() || columns.isEmpty()) {
        return true;
    }
    QStringList conditions;
    for (const auto& column : columns) {
        conditions << "[" + column + "] = " + QuotedStr(form_->value(column));
    }
    const QString table = QLatin1String(facts_.table);
    if (sld_CheckDuplicates("SELECT [RecID] FROM " + table + facts_.unique.hint + " WHERE " +
                                conditions.join("   AND "_L1),
                            table)) {
        const auto* focus = facts_.unique.focus;
        return refuse(focus != nullptr ? control<QWidget>(focus) : nullptr, facts_.unique.refusal);
    }
    return true;
}

void DetailScreen::AddData() {
    sfg_AddSQL(form_->insertText(), u"NEW"_s);
}

void DetailScreen::UpdateData() {
    sfg_AddSQL(form_->updateText(xRecID), u"NEW"_s);
}

void DetailScreen::DeleteData() {
    sfg_AddSQL("DELETE FROM " + QLatin1String(facts_.table) +
                   " WHERE [RecID] = " + QuotedStr(xRecID),
               u"NEW"_s);
}

bool DetailScreen::refuse(QWidget* control, const QString& message) {
    clearRefusal();
    displayError(message);
    if (control != nullptr) {
        offending_ = control;
        describe(*control, message);
        mark(control, "offending", true);
        velcro::ui::bringForward(*control);
        control->setFocus();
    }
    return false;
}

void DetailScreen::clearRefusal() {
    resetStatusBar();
    if (offending_ != nullptr) {
        mark(offending_, "offending", false);
        describe(*offending_, {});
        offending_ = nullptr;
    }
}

bool DetailScreen::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if ((key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) &&
            key->modifiers().testFlag(Qt::ControlModifier) == false) {
            enterPressed(watched);
            return true;
        }
    }
    return Screen::eventFilter(watched, event);
}

// A delete wants its own key: the Enter after the one that asked for it comes too easily.
void DetailScreen::enterPressed(const QObject* control) {
    if (control != btnSave) {
        focusNextChild();
    } else if (!deleting()) {
        btnSave->click();
    }
}
