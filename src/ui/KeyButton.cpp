#include "ui/KeyButton.h"

#include "ui/KeyCap.h"
#include "ui/Theme.h"

#include <QStyle>

#include <algorithm>

namespace velcro::ui {

namespace {

constexpr QSize capSize(46, 26);

const char* roleName(KeyButton::Role role) {
    switch (role) {
    case KeyButton::Role::Main:
        return "main";
    case KeyButton::Role::Danger:
        return "danger";
    default:
        return "";
    }
}

} // namespace

KeyButton::KeyButton(const QString& caption, QWidget* parent)
    : QPushButton(caption, parent) {
    // Enter belongs to the edits and the grid of a screen, never to a button out of focus.
    setAutoDefault(false);
    setIconSize(capSize);
}

void KeyButton::setKeyCap(const QString& key) {
    key_ = key;
    setIcon(key.isEmpty() ? QIcon() : keyCapIcon(key));
}

// The style sheet tells the kinds of button apart by these.
void KeyButton::setRole(Role role) {
    setProperty("role", roleName(role));
    if (testAttribute(Qt::WA_WState_Polished)) {
        style()->unpolish(this);
        style()->polish(this);
    }
}

void KeyButton::setInPanel(bool inPanel) {
    setProperty("panel", inPanel);
}

QSize KeyButton::sizeHint() const {
    const auto hint = QPushButton::sizeHint();
    return {hint.width(), std::max(hint.height(), touchHeight)};
}

} // namespace velcro::ui
