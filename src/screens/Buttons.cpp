#include "screens/Buttons.h"

#include "platform/seat/OnScreenKeyboard.h"
#include "screens/SysFuncGlobal.h"
#include "ui/Handler.h"
#include "ui/Icons.h"
#include "ui/KeyCap.h"

#include <QShortcut>

using velcro::ui::connectHandler;
using velcro::ui::KeyButton;
using namespace Qt::Literals::StringLiterals;

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
    if (const auto key = facts.key.isEmpty() ? button->shortcut() : facts.key; !key.isEmpty()) {
        button->setAccessibleDescription(u"Key "_s + key.toString(QKeySequence::NativeText));
    }
    button->setRole(facts.role);
    if (!facts.icon.isEmpty()) {
        button->setIcon(velcro::ui::icon(facts.icon));
    }
    const auto cap = facts.cap.value_or(velcro::ui::keyCapName(facts.key));
    if (velcro::ui::findKeyCap(cap) != nullptr) {
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

KeyButton* makeKeyboardButton(QWidget& form) {
    auto* button = makeButton(form, {.name = u"btnKeyboard"_s,
                                     .caption = u"Touch Keyboard"_s,
                                     .handler = sfg_ShowTouchKeyboard,
                                     .hint = u"Touch Keyboard"_s});
    button->setSymbol(velcro::ui::icon(u"keyboard"_s));
    button->setFocusPolicy(Qt::NoFocus); // the edit that is typed into keeps the focus
    if (!velcro::seat::hasKeyboard()) {
        button->setEnabled(false);
        button->setToolTip(u"No keyboard for the screen is installed on this seat"_s);
        button->setAccessibleDescription(button->toolTip());
    }
    return button;
}
