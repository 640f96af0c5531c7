#include "screens/Buttons.h"

#include "ui/Handler.h"
#include "ui/Icons.h"
#include "ui/KeyCap.h"

#include <QShortcut>

using velcro::ui::connectHandler;
using velcro::ui::KeyButton;

namespace {

void bindKey(QWidget& form, const QKeySequence& key, KeyButton& button) {
    connectHandler(new QShortcut(key, &form), &QShortcut::activated, &button,
                   [&button] { button.click(); });
    if (key[0].key() == Qt::Key_Return) {
        bindKey(form, QKeyCombination(key[0].keyboardModifiers(), Qt::Key_Enter), button);
    }
}

// A button acts on its underlined letter only after it was seen going down. What is typed into the
// screen that it opens would be lost until then.
void bindUnderlinedLetter(QWidget& form, KeyButton& button) {
    if (const auto key = button.shortcut(); !key.isEmpty()) {
        button.setShortcut({});
        bindKey(form, key, button);
    }
}

} // namespace

bool isPlainEnter(const QKeySequence& key) {
    return key == QKeySequence(Qt::Key_Return);
}

KeyButton* makeButton(QWidget& form, const ButtonFacts& facts, PlainEnter enter) {
    auto* button = new KeyButton(facts.caption, &form);
    button->setObjectName(facts.name);
    button->setAccessibleName(facts.caption.simplified().remove(QLatin1Char('&')));
    button->setToolTip(facts.hint);
    button->setRole(facts.role);
    if (!facts.icon.isEmpty()) {
        button->setIcon(velcro::ui::icon(facts.icon));
    }
    if (const auto cap = facts.cap.value_or(velcro::ui::keyCapName(facts.key)); !cap.isEmpty()) {
        button->setKeyCap(cap);
    }
    button->setEnabled(bool(facts.handler));
    if (facts.handler) {
        connectHandler(button, &KeyButton::clicked, button,
                       [handler = facts.handler] { handler(); });
    }
    bindUnderlinedLetter(form, *button);
    for (const auto& key : QList<QKeySequence>{facts.key} + facts.alsoKeys) {
        if (!key.isEmpty() && !(enter == PlainEnter::StaysWithForm && isPlainEnter(key))) {
            bindKey(form, key, *button);
        }
    }
    return button;
}
