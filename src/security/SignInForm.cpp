#include "security/SignInForm.h"

#include "screens/SysFuncGlobal.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QShowEvent>
#include <QVBoxLayout>

namespace {

constexpr int codeLength = 10;

QString entryStyle(bool password, bool hasFocus) {
    return QStringLiteral("%1 %2").arg(
        password ? QStringLiteral("lineedit-password-character: 35;") : QString(),
        hasFocus ? QStringLiteral("background: #ffeca8;") : QString());
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
    buttons_->addStretch();
    body().addWidget(page);
    body().addLayout(buttons_);
    // Over the whole program where there is a main form, and on the task bar where there is none.
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
}

QLineEdit* SignInForm::addCode(const QString& name, const QString& label) {
    auto* edit = form_->edit(name, label, {.width = 16, .limit = codeLength, .upperCase = true});
    edit->installEventFilter(this);
    velcro::ui::connectHandler(edit, &QLineEdit::returnPressed, this, [this] { goOn(); });
    return edit;
}

QLineEdit* SignInForm::addPassword(const QString& name, const QString& label) {
    auto* edit = addCode(name, label);
    edit->setEchoMode(QLineEdit::Password);
    edit->setStyleSheet(entryStyle(true, false));
    edit->setInputMethodHints(Qt::ImhHiddenText | Qt::ImhSensitiveData | Qt::ImhNoPredictiveText);
    return edit;
}

velcro::ui::KeyButton* SignInForm::addButton(const QString& name, const QString& caption,
                                             const QString& keyCap) {
    auto* button = newButton(name, caption, keyCap);
    button->setAutoDefault(false);
    buttons_->addWidget(button);
    return button;
}

void SignInForm::refuse(const QString& message, QWidget* focus) {
    displayError(message);
    focus->setFocus();
}

void SignInForm::finish(const QString& outcome) {
    xReturn = outcome;
    accept();
}

bool SignInForm::eventFilter(QObject* watched, QEvent* event) {
    if (auto* edit = qobject_cast<QLineEdit*>(watched);
        edit && (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)) {
        edit->setStyleSheet(
            entryStyle(edit->echoMode() == QLineEdit::Password || edit->property("secret").toBool(),
                       event->type() == QEvent::FocusIn));
    }
    return Screen::eventFilter(watched, event);
}

void SignInForm::showEvent(QShowEvent* event) {
    if (!event->spontaneous()) {
        resize(sizeHint().expandedTo(QSize(leastWidth_, 0)));
        move(sfg_SetFormLeft(*this, 0), sfg_SetFormTop(*this, 0));
    }
    Screen::showEvent(event);
}
