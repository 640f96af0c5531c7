#include "screens/SelectionScreen.h"

#include "data/DataUVEL.h"

namespace {

void take(const Field& from, QString* into) {
    *into = from.AsString();
}

void take(const Field& from, int* into) {
    *into = from.AsInteger();
}

void take(const Field& from, double* into) {
    *into = from.AsFloat();
}

} // namespace

SelectionScreen::SelectionScreen(ListFacts facts, std::vector<PickedField> picked, QWidget* parent)
    : ListScreen(std::move(facts), gData->Velmara, parent)
    , picked_(std::move(picked)) {
    // Both page keys step one record back, wherever the focus is.
    bindKey(Qt::Key_PageUp, this, [this] { grid().previous(); });
    bindKey(Qt::Key_PageDown, this, [this] { grid().previous(); });
}

ButtonFacts SelectionScreen::selectButton(const QString& caption, const QString& name) {
    return {.name = name,
            .caption = caption,
            .key = Qt::Key_Return,
            .handler = [this] { btnSelectClick(); },
            .role = ButtonFacts::Role::Main};
}

void SelectionScreen::FormShow() {
    for (const auto& picked : picked_) {
        std::visit([](auto* field) { *field = {}; }, picked.field);
    }
    ListScreen::FormShow();
}

void SelectionScreen::pickFrom(const Statement& row) {
    for (const auto& picked : picked_) {
        const auto from = row.FieldByName(QString::fromLatin1(picked.column));
        std::visit([&from](auto* field) { take(from, field); }, picked.field);
    }
}

void SelectionScreen::btnSelectClick() {
    if (!hasCurrentRecord()) {
        nothingToPick();
        return;
    }
    pickFrom(query());
    if (rowPicked()) {
        accept();
    }
}

void SelectionScreen::rowChosen() {
    if (hasCurrentRecord()) {
        btnSelectClick();
    }
}
