#include "ui/KeyButton.h"

#include "ui/KeyCap.h"
#include "ui/Theme.h"

#include <QKeyEvent>
#include <QStyle>
#include <QStyleOptionButton>

#include <algorithm>

namespace velcro::ui {

namespace {

constexpr QSize capSize(46, 26);
constexpr QSize symbolSize(24, 24);

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

bool clickedByEnter(QAbstractButton& button, const QKeyEvent& event) {
    const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    if (!enter || (event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) {
        return false;
    }
    if (!event.isAutoRepeat()) {
        button.click();
    }
    return true;
}

KeyButton::KeyButton(const QString& caption, QWidget* parent)
    : QPushButton(caption, parent) {
    // Enter belongs to what has the focus, never to a button that has not.
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

void KeyButton::setSymbol(const QIcon& symbol) {
    symbol_ = symbol;
    setSizePolicy(QSizePolicy::Preferred, sizePolicy().verticalPolicy());
}

void KeyButton::resizeEvent(QResizeEvent* event) {
    QPushButton::resizeEvent(event);
    folded_ = !symbol_.isNull() && width() < sizeHint().width();
}

void KeyButton::initStyleOption(QStyleOptionButton* option) const {
    QPushButton::initStyleOption(option);
    option->text = option->text.simplified();
    if (folded_) {
        option->text.clear();
        option->icon = symbol_;
        option->iconSize = symbolSize;
    }
}

void KeyButton::setRound(bool round) {
    setProperty("round", round);
}

void KeyButton::setInPanel(bool inPanel) {
    setProperty("panel", inPanel);
}

void KeyButton::keyPressEvent(QKeyEvent* event) {
    if (!clickedByEnter(*this, *event)) {
        QPushButton::keyPressEvent(event);
    }
}

QSize KeyButton::sizeHint() const {
    const auto hint = QPushButton::sizeHint();
    const int unused = fontMetrics().horizontalAdvance(text()) -
                       fontMetrics().horizontalAdvance(text().simplified());
    return {hint.width() - unused, std::max(hint.height(), touchHeight)};
}

QSize KeyButton::minimumSizeHint() const {
    return symbol_.isNull() ? sizeHint() : QSize(touchHeight, sizeHint().height());
}

} // namespace velcro::ui
