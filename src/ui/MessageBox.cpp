#include "ui/MessageBox.h"

#include "ui/Handler.h"
#include "ui/KeyButton.h"
#include "ui/MessageBand.h"
#include "ui/Modal.h"
#include "ui/ScreenFit.h"

#include <QLabel>
#include <QVBoxLayout>

namespace velcro::ui {

namespace {
constexpr QRgb red = 0xffb3261e;
constexpr QRgb white = 0xffffffff;
constexpr int margin = 20;
constexpr int textWidth = 460;
constexpr int buttonWidth = 140;
} // namespace

MessageBox::MessageBox(const QString& title, const QString& text, QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("MessageBox"));
    setWindowTitle(title);
    setAccessibleDescription(text);
    auto* lblText = new QLabel(text);
    lblText->setObjectName(QStringLiteral("lblText"));
    lblText->setTextFormat(Qt::PlainText);
    lblText->setTextInteractionFlags(Qt::TextSelectableByMouse);
    lblText->setWordWrap(true);
    lblText->setMargin(margin);
    lblText->setMinimumWidth(textWidth);
    auto* btnOK = new KeyButton(QStringLiteral("OK"), this);
    btnOK->setObjectName(QStringLiteral("btnOK"));
    btnOK->setKeyCap(QStringLiteral("ENTER"));
    btnOK->setMinimumWidth(buttonWidth);
    connectHandler(btnOK, &KeyButton::clicked, this, &QDialog::accept);
    btnOK->setFocus();
    auto* buttons = new QHBoxLayout;
    buttons->setContentsMargins(margin, 0, margin, margin);
    buttons->addStretch();
    buttons->addWidget(btnOK);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSpacing(0);
    whole->addWidget(new MessageBand(QStringLiteral("error"), title, red, white, this));
    whole->addWidget(new ScrollPage(lblText, this), 1);
    whole->addLayout(buttons);
}

void showMessageBox(QWidget* parent, const QString& title, const QString& text) {
    MessageBox box(title, text, parent);
    runModal(box);
}

} // namespace velcro::ui
