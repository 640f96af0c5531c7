#include "security/SignInForm.h"

#include "data/SysDataModel.h"
#include "screens/SysFuncGlobal.h"
#include "ui/ScreenFit.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QShowEvent>
#include <QVBoxLayout>

#include <algorithm>

namespace {

// The character counts only while the edit hides its text, so every entry has it.
QString entryStyle(bool hasFocus) {
    return QStringLiteral("lineedit-password-character: 35; %1")
        .arg(hasFocus ? QStringLiteral("background: #ffeca8; color: #1d2c36;") : QString());
}

} // namespace

SignInForm::SignInForm(const QString& unit, const QString& caption, int leastWidth)
    : Screen(unit, caption, nullptr)
    , leastWidth_(leastWidth) {
    auto* page = new QWidget(this);
    form_ = std::make_unique<velcro::ui::FormBuilder>(page);
    buttons_ = new QHBoxLayout;
    buttons_->setContentsMargins(12, 0, 12, 12);
    buttons_->setSpacing(10);
    buttons_->addWidget(makeKeyboardButton(*this));
    buttons_->addStretch();
    body().addWidget(new velcro::ui::ScrollPage(page, this), 1);
    body().addLayout(buttons_);
    // Over the whole program where there is a main form, and on the task bar where there is none.
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
}

QLineEdit* SignInForm::addCode(const QString& name, const QString& label, int limit) {
    auto* edit = form_->edit(name, label, {.width = 16, .limit = limit, .upperCase = true});
    edit->installEventFilter(this);
    velcro::ui::connectHandler(edit, &QLineEdit::returnPressed, this, [this] { goOn(); });
    return edit;
}

QLineEdit* SignInForm::addPassword(const QString& name, const QString& label, int limit) {
    auto* edit = addCode(name, label, limit);
    edit->setEchoMode(QLineEdit::Password);
    edit->setStyleSheet(entryStyle(false));
    edit->setInputMethodHints(Qt::ImhHiddenText | Qt::ImhSensitiveData | Qt::ImhNoPredictiveText);
    return edit;
}

void SignInForm::addRequest() {
    request_ = form_->value(QStringLiteral("lblRequest"), QStringLiteral("To Authorise"));
}

void SignInForm::showRequest(const QString& xModCode, int xAccessNo) {
    const auto rule = std::ranges::find_if(gAccessRules, [&](const auto& candidate) {
        return candidate->ModCode == xModCode && candidate->AccessNo == xAccessNo;
    });
    const QString name = rule != gAccessRules.end() ? (*rule)->AccessName.trimmed() : QString();
    request_->setText(
        name.isEmpty() ? QStringLiteral("Access code %1 of module %2").arg(xAccessNo).arg(xModCode)
                       : QStringLiteral("%1 (%2 %3)").arg(name, xModCode).arg(xAccessNo));
}

velcro::ui::KeyButton* SignInForm::addButton(const ButtonFacts& facts) {
    auto* button = makeButton(*this, facts);
    buttons_->addWidget(button);
    return button;
}

void SignInForm::refuse(const QString& message, QWidget* focus) {
    displayError(message);
    describe(*focus, message);
    goTo(focus);
}

// What is typed next takes the place of what was refused.
void SignInForm::goTo(QWidget* control) {
    control->setFocus();
    if (auto* edit = qobject_cast<QLineEdit*>(control)) {
        edit->selectAll();
    }
}

void SignInForm::finish(const QString& outcome) {
    xReturn = outcome;
    accept();
}

bool SignInForm::eventFilter(QObject* watched, QEvent* event) {
    if (auto* edit = qobject_cast<QLineEdit*>(watched);
        edit && (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)) {
        edit->setStyleSheet(entryStyle(event->type() == QEvent::FocusIn));
    }
    return Screen::eventFilter(watched, event);
}

void SignInForm::showEvent(QShowEvent* event) {
    if (!event->spontaneous()) {
        resize(sizeHint().expandedTo(QSize(leastWidth_, 0)).boundedTo(screen()->availableSize()));
        move(sfg_SetFormLeft(*this, 0), sfg_SetFormTop(*this, 0));
    }
    Screen::showEvent(event);
}
