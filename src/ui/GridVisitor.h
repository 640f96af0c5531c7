// A grid as the user sees it, told cell by cell: the visible columns in their order, the rows in
// theirs. Whatever prints, exports or counts a grid listens.
#pragma once

#include "ui/RowSetModel.h"

namespace velcro::ui {

class RowGrid;

struct VisibleColumn
{
    int index; // in the model
    QString heading;
    CellType type;
    int width; // on screen, in pixels

    bool isNumeric() const { return type == CellType::Whole || type == CellType::Decimal; }
};

/// One cell, converted when it is asked for.
class GridCell
{
public:
    GridCell(const RowSetModel& model, int row, int column)
        : model_(&model)
        , row_(row)
        , column_(column) {}
    /// As it is shown.
    QString text() const { return model_->text(row_, column_); }
    /// By the type of its column; see CellValue.
    CellValue value() const { return model_->value(row_, column_); }

private:
    const RowSetModel* model_;
    int row_;
    int column_;
};

class GridVisitor
{
public:
    virtual ~GridVisitor() = default;
    /// First of all, also of a grid without columns or rows.
    virtual void begin(const std::vector<VisibleColumn>& columns, int rows) = 0;
    /// False ends the visit before the row.
    virtual bool beginRow(int /*row*/) { return true; }
    /// position: of the column among the visible ones.
    virtual void cell(int position, const GridCell& cell) = 0;
};

void visitGrid(const RowGrid& grid, GridVisitor& visitor);

} // namespace velcro::ui
