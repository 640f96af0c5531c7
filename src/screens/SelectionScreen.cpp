#include "screens/SelectionScreen.h"

#include "data/DataUVEL.h"

using velcro::ui::connectHandler;
using velcro::ui::KeyButton;

SelectionScreen::SelectionScreen(ListFacts facts, SelectionRead read,
                                 std::vector<PickedField> picked, QWidget* parent)
    : ListScreen(std::move(facts), gData->Velmara, parent)
    , read_(std::move(read))
    , picked_(std::move(picked)) {
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

QStringList SelectionScreen::statementLines(const QString& xSQL) const {
    if (xSQL.trimmed().isEmpty()) {
        return read_.whole + read_.scope + QStringList(read_.order);
    }
    return read_.search + read_.scope + QStringList(xSQL);
}

void SelectionScreen::FormShow() {
    for (const auto& picked : picked_) {
        picked.field->clear();
    }
    ListScreen::FormShow();
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
    for (const auto& picked : picked_) {
        *picked.field = query().FieldByName(QString::fromLatin1(picked.column)).AsString();
    }
    takeRecord();
    accept();
}

void SelectionScreen::rowChosen() {
    if (hasCurrentRecord()) {
        btnSelectClick();
    }
}
