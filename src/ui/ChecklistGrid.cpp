#include "ui/ChecklistGrid.h"

#include "ui/Handler.h"

#include <QHash>
#include <QPainter>
#include <QScopeGuard>

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
    connectHandler(&rowModel(), &RowSetModel::modelReset, this, &ChecklistGrid::countTicks);
    connectHandler(&rowModel(), &RowSetModel::dataChanged, this, [this] {
        emit edited();
        countTicks();
    });
}

void ChecklistGrid::countTicks() {
    if (ticking_) {
        return;
    }
    const auto& model = rowModel();
    int count = 0;
    for (std::size_t row = 0; row < model.rows().rowCount(); ++row) {
        count += model.isTicked(row, Tick) ? 1 : 0;
    }
    if (count != std::exchange(count_, count)) {
        emit ticksChanged(count);
    }
}

void ChecklistGrid::tick(const QStringList& codes) {
    auto& model = rowModel();
    QHash<QString, std::size_t> rows;
    for (std::size_t row = model.rows().rowCount(); row-- > 0;) {
        rows.insert(model.stored(row, Code).toCaseFolded(), row); // the first row stays
    }
    ticking_ = true; // counted once
    const auto counted = qScopeGuard([this] {
        ticking_ = false;
        countTicks();
    });
    for (const auto& code : codes) {
        if (const auto row = rows.constFind(code.toCaseFolded()); row != rows.constEnd()) {
            model.setTicked(*row, Tick, true);
        }
    }
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

void ChecklistGrid::setEmptyText(const QString& text) {
    emptyText_ = text;
    setAccessibleDescription(text);
    viewport()->update();
}

void ChecklistGrid::paintEvent(QPaintEvent* event) {
    RowGrid::paintEvent(event);
    if (rowModel().rowCount() == 0 && !emptyText_.isEmpty()) {
        constexpr int margin = 24;
        QPainter(viewport())
            .drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                      Qt::AlignHCenter | Qt::TextWordWrap, emptyText_);
    }
}

} // namespace velcro::ui
