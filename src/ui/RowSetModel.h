// Rows of a result for a grid. The rows stay as they were fetched; a cell becomes text only when it
// is painted, and sorting moves row numbers, not rows.
#pragma once

#include "platform/sqlserver/RowSet.h"

#include <QAbstractTableModel>
#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

namespace velcro::ui {

/// A column as the screen declares it.
struct GridColumn
{
    QString field;        // column of the result; case does not count
    QString caption = {}; // blank: the field's name
    /// Turns the stored text into what is shown; none shows it as stored.
    QString (*display)(const QString& stored) = nullptr;
    bool numeric = false; // text that is to be sorted and aligned as numbers
    bool visible = true;

    QString heading() const { return caption.isEmpty() ? field : caption; }
};

class RowSetModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// How a cell becomes text.
    using CellReader = QString (*)(const sql::RowSet& rows, std::size_t row, std::size_t column);

    explicit RowSetModel(QObject* parent = nullptr);

    void setCellReader(CellReader reader) { read_ = reader; }
    /// Columns in view order; those the result lacks stay blank.
    void setColumns(std::vector<GridColumn> columns);
    const std::vector<GridColumn>& columns() const { return columns_; }
    /// Takes new rows and keeps the sorting that the user chose.
    void setRows(const sql::RowSet& rows);
    const sql::RowSet& rows() const { return rows_; }

    /// Position in the result of a row of the view, and the other way round.
    std::size_t resultRow(int viewRow) const;
    int viewRow(std::size_t resultRow) const;
    bool isNumeric(int column) const;
    /// What the cell shows.
    QString text(int viewRow, int column) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    /// Text without regard to case, numbers as numbers, equal rows in the server's order; column -1
    /// is the server's order throughout.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

private:
    void bindColumns();
    void orderRows();
    void orderByNumber(std::size_t source);
    void orderByText(int column);

    CellReader read_;
    std::vector<GridColumn> columns_;
    std::vector<std::optional<std::size_t>> sources_; // of each column, in the result
    sql::RowSet rows_;
    std::vector<std::uint32_t> order_; // empty: the server's
    int sortColumn_ = -1;
    Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
};

} // namespace velcro::ui
