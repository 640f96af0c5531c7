#include "application/SelectionScreen.h"

#include <QLineEdit>

using velcro::ui::connectHandler;
using velcro::ui::KeyButton;

SelectionScreen::SelectionScreen(ListFacts facts, Connection& connection, QWidget* parent)
    : ListScreen(std::move(facts), connection, parent) {
    btnSelect =
        addOption(QStringLiteral("btnSelect"), QStringLiteral("Select"), QStringLiteral("ENTER"));
    connectHandler(btnSelect, &KeyButton::clicked, this, [this] { btnSelectClick(); });
    setMainButton(btnSelect);
    addSearch(QStringLiteral("CTRL-S"));
    addRestore(QStringLiteral("CTRL-R"), Qt::Key_F12);
    // What the caps promise, beside the function keys.
    bindKey(QKeySequence(Qt::CTRL | Qt::Key_S), this, [this] { btnSearchClick(); });
    bindKey(QKeySequence(Qt::CTRL | Qt::Key_R), this, [this] { BuildGrid(); });
    bindKey(Qt::Key_F4, this, [this] { btnSearchClick(); });
    // Both page keys step one record back, wherever the focus is.
    bindKey(Qt::Key_PageUp, this, [this] { grid().previous(); });
    bindKey(Qt::Key_PageDown, this, [this] { grid().previous(); });
}

QString SelectionScreen::field(const char* name) const {
    return query().FieldByName(QString::fromLatin1(name)).AsString();
}

void SelectionScreen::hideKeyCaps() {
    for (auto* button : findChildren<KeyButton*>()) {
        if (!button->keyCap().isEmpty()) {
            button->setKeyCap({});
        }
    }
}

void SelectionScreen::btnSelectClick() {
    if (!hasCurrentRecord()) {
        nothingToTake();
        return;
    }
    takeRecord();
    accept();
}

void SelectionScreen::rowChosen() {
    if (hasCurrentRecord()) {
        btnSelectClick();
    }
}
