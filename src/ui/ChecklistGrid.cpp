#include "ui/ChecklistGrid.h"

namespace velcro::ui {

ChecklistGrid::ChecklistGrid(const Facts& facts, QWidget* parent)
    : RowGrid(parent) {
    auto note = facts.note;
    note.editable = true;
    note.limit = facts.noteLimit;
    setSortingEnabled(false); // the list keeps the order of its codes
    setColumns({{.field = QStringLiteral("Tick"),
                 .caption = QStringLiteral(" "),
                 .type = CellType::Tick,
                 .editable = true},
                facts.code,
                facts.description,
                note});
}

bool ChecklistGrid::tick(const QString& code) {
    auto& model = rowModel();
    for (std::size_t row = 0; row < model.rows().rowCount(); ++row) {
        if (model.stored(row, Code).compare(code, Qt::CaseInsensitive) == 0) {
            model.setTicked(row, Tick, true);
            return true;
        }
    }
    return false;
}

std::vector<ChecklistGrid::Entry> ChecklistGrid::ticked() {
    endEdit();
    std::vector<Entry> entries;
    const auto& model = rowModel();
    for (std::size_t row = 0; row < model.rows().rowCount(); ++row) {
        if (model.isTicked(row, Tick)) {
            entries.push_back({model.stored(row, Code), model.stored(row, Note)});
        }
    }
    return entries;
}

} // namespace velcro::ui
