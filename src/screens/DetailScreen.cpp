#include "screens/DetailScreen.h"

#include "data/DataUVEL.h"
#include "data/StatementText.h"
#include "screens/SysFuncGlobal.h"
#include "ui/DateEdit.h"

#include <QApplication>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollArea>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

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

} // namespace

DetailScreen::DetailScreen(const QString& unit, const QString& caption, const QString& saveCaption,
                           QWidget* parent)
    : Screen(unit, caption, parent) {
    pnlMain = new QWidget;
    pnlMain->setObjectName(QStringLiteral("pnlMain"));
    auto* area = new QScrollArea(this);
    area->setObjectName(QStringLiteral("scrMain"));
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(pnlMain);
    body().addWidget(area, 1);
    // On a small screen the control that is worked in scrolls into sight, however it got there.
    connectHandler(qApp, &QApplication::focusChanged, this, [this, area](QWidget*, QWidget* now) {
        if (now != nullptr && pnlMain->isAncestorOf(now)) {
            const QRect control(now->mapTo(pnlMain, QPoint()), now->size());
            area->ensureVisible(control.center().x(), control.center().y(),
                                control.width() / 2 + margin, control.height() / 2 + margin);
        }
    });
    makeButtons(saveCaption);
    bindKey(Qt::Key_F10, btnSave);
    bindKey(Qt::Key_Escape, btnCancel);
}

// Save stands at the bottom right, where the thumb is.
void DetailScreen::makeButtons(const QString& saveCaption) {
    btnKeyboard = newButton(QStringLiteral("btnKeyboard"), QStringLiteral("Touch Keyboard"), {});
    btnCancel = newButton(QStringLiteral("btnCancel"), QStringLiteral("Close Window"),
                          QStringLiteral("ESC"));
    btnSave = newButton(QStringLiteral("btnSave"), saveCaption, QStringLiteral("F10"));
    btnSave->setRole(KeyButton::Role::Main);
    btnKeyboard->setFocusPolicy(Qt::NoFocus); // the edit that is typed into keeps the focus
    connectHandler(btnKeyboard, &KeyButton::clicked, this, [] { sfg_ShowTouchKeyboard(); });
    connectHandler(btnCancel, &KeyButton::clicked, this, &DetailScreen::reject);
    connectHandler(btnSave, &KeyButton::clicked, this, [this] { btnSaveClick(); });
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

void DetailScreen::FormShow() {
    // Before anything can fail: a delete must never look like a save.
    showMode();
    watchDates();
    try {
        setDefaults();
        if (!adding()) {
            ExtractData();
        }
    } catch (...) {
        saveNothing();
        throw;
    }
    if (deleting()) {
        btnSave->setFocus();
    } else if (firstControl_ != nullptr) {
        firstControl_->setFocus();
    }
}

void DetailScreen::showMode() {
    if (deleting()) {
        pnlMain->setEnabled(false);
        btnSave->setText(QStringLiteral("DELETE"));
        btnSave->setAccessibleName(QStringLiteral("DELETE"));
        btnSave->setRole(KeyButton::Role::Danger);
        resetStatusBar();
        displayError(QStringLiteral("Press [F10] to Delete"));
    }
}

void DetailScreen::saveNothing() {
    btnSave->setEnabled(false);
    displayError(QStringLiteral("Could not be read: nothing can be saved. Close and open again."));
    btnCancel->setFocus();
}

void DetailScreen::btnSaveClick() {
    if (!deleting() && !datesCanBeRead()) {
        return;
    }
    if ((!deleting() || validatesDelete()) && !Validation()) {
        return;
    }
    sfg_ClearSQL();
    collect();
    // A failed save has told of itself; the screen closes all the same.
    gData->vel_ExecSQL(1);
    afterSave();
    accept();
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

bool DetailScreen::refuse(QWidget* control, const QString& message) {
    clearRefusal();
    displayError(message);
    if (control != nullptr) {
        offending_ = control;
        mark(control, "offending", true);
        control->setFocus();
    }
    return false;
}

void DetailScreen::clearRefusal() {
    resetStatusBar();
    if (offending_ != nullptr) {
        mark(offending_, "offending", false);
        offending_ = nullptr;
    }
}

void DetailScreen::lockKey(QLineEdit* edit) {
    edit->setReadOnly(true);
    edit->setFocusPolicy(Qt::ClickFocus);
    mark(edit, "locked", true);
}

void DetailScreen::watchDates() {
    for (auto* edit : findChildren<DateEdit*>()) {
        connectHandler(edit, &DateEdit::dateRefused, this, [this, edit] {
            refuse(edit, edit->accessibleName() +
                             QStringLiteral(" is not a date. Type it as yyyy/mm/dd."));
        });
    }
}

bool DetailScreen::datesCanBeRead() {
    for (auto* edit : findChildren<DateEdit*>()) {
        if (!edit->tidy()) {
            return false;
        }
    }
    return true;
}

void DetailScreen::moveOnWithEnter(const std::vector<QWidget*>& except) {
    const auto watch = [&](QWidget* control) {
        if (std::find(except.begin(), except.end(), control) == except.end()) {
            control->installEventFilter(this);
        }
    };
    for (auto* edit : pnlMain->findChildren<QLineEdit*>()) {
        watch(edit);
    }
    for (auto* combo : pnlMain->findChildren<QComboBox*>()) {
        watch(combo);
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
