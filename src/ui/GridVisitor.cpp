#include "ui/GridVisitor.h"

#include "ui/RowGrid.h"

#include <QHeaderView>

namespace velcro::ui {

namespace {

std::vector<VisibleColumn> visibleColumns(const RowGrid& grid) {
    std::vector<VisibleColumn> columns;
    const auto* header = grid.horizontalHeader();
    const auto& model = grid.rowModel();
    for (int visual = 0; visual < header->count(); ++visual) {
        const int index = header->logicalIndex(visual);
        if (!header->isSectionHidden(index)) {
            columns.push_back({index, model.columns()[index].heading(), model.cellType(index),
                               header->sectionSize(index)});
        }
    }
    return columns;
}

} // namespace

void visitGrid(const RowGrid& grid, GridVisitor& visitor) {
    const auto columns = visibleColumns(grid);
    const int rows = grid.rowModel().rowCount();
    visitor.begin(columns, rows);
    for (int row = 0; row < rows; ++row) {
        if (!visitor.beginRow(row)) {
            return;
        }
        for (int position = 0; position < static_cast<int>(columns.size()); ++position) {
            visitor.cell(position, {grid.rowModel(), row, columns[position].index});
        }
    }
}

} // namespace velcro::ui
