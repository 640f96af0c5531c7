#include "screens/MessageForm.h"

#include "screens/SysFuncGlobal.h"
#include "ui/MessageBand.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace {
constexpr int buttonWidth = 140; // the short words on them leave nothing to aim at
}

MessageForm::MessageForm(const MessageLook& look) {
    setObjectName(QLatin1String(look.unit));
    setWindowTitle(QLatin1String(look.caption));
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSpacing(0);
    whole->addWidget(new velcro::ui::MessageBand(
        QLatin1String(look.picture), QLatin1String(look.caption), look.band, look.ink, this));
    body_ = new QVBoxLayout;
    body_->setContentsMargins(20, 14, 20, 6);
    body_->setSpacing(6);
    whole->addLayout(body_, 1);
    buttons_ = new QHBoxLayout;
    buttons_->setContentsMargins(20, 8, 20, 14);
    buttons_->setSpacing(12);
    buttons_->addStretch();
    whole->addLayout(buttons_);
    resize(560, 300);
}

QPlainTextEdit* MessageForm::addText(const QString& name, const QString& text,
                                     const QString& spoken) {
    auto* edit = new QPlainTextEdit(this);
    edit->setObjectName(name);
    edit->setAccessibleName(spoken);
    edit->setReadOnly(true);
    edit->setFrameShape(QFrame::NoFrame);
    edit->setFocusPolicy(Qt::ClickFocus);
    QFont font = edit->font();
    font.setPointSizeF(font.pointSizeF() + 1);
    edit->setFont(font);
    edit->setPlainText(text);
    edit->setProperty("role", "message");
    setAccessibleDescription((accessibleDescription() + QLatin1Char(' ') + text).simplified());
    body_->addWidget(edit, 1);
    return edit;
}

QLabel* MessageForm::addFact(const QString& name, const QString& title, const QString& value,
                             QHBoxLayout* beside) {
    auto* row = beside != nullptr ? beside : new QHBoxLayout;
    auto* caption = new QLabel(title, this);
    caption->setMinimumWidth(beside != nullptr ? 0 : 160);
    auto* label = new QLabel(value, this);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setWordWrap(true);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    row->addWidget(caption);
    row->addWidget(label, 1);
    if (beside == nullptr) {
        body_->addLayout(row);
    }
    return label;
}

QPushButton* MessageForm::addButton(const ButtonFacts& facts) {
    auto* button = makeButton(*this, facts);
    button->setMinimumWidth(buttonWidth);
    buttons_->addWidget(button);
    return button;
}

QPushButton* MessageForm::addCloseButton() {
    auto* button = addButton({.name = QStringLiteral("btnClose"),
                              .caption = tr("Close"),
                              .key = Qt::Key_Return,
                              .handler = [this] { accept(); }});
    button->setFocus();
    return button;
}

void MessageForm::centre(int xLeft) {
    move(sfg_SetFormLeft(*this, xLeft), sfg_SetFormTop(*this, 0));
}

void MessageForm::closeAfter(int milliseconds) {
    closeAfter_ = milliseconds;
}

void MessageForm::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (closeAfter_ > 0) {
        QTimer::singleShot(closeAfter_, this, &QDialog::accept);
    }
}
