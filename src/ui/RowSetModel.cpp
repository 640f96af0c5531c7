#include "ui/RowSetModel.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace velcro::ui {

namespace {

QString plainText(const sql::RowSet& rows, std::size_t row, std::size_t column) {
    return QString::fromStdString(rows.text(row, column));
}

// Orders row numbers by a key each; the key of row n is keys[n].
template <typename Key>
void orderByKeys(std::vector<std::uint32_t>& order, const std::vector<Key>& keys,
                 Qt::SortOrder direction) {
    if (direction == Qt::AscendingOrder) {
        std::stable_sort(order.begin(), order.end(),
                         [&keys](auto a, auto b) { return keys[a] < keys[b]; });
    } else {
        std::stable_sort(order.begin(), order.end(),
                         [&keys](auto a, auto b) { return keys[b] < keys[a]; });
    }
}

} // namespace

RowSetModel::RowSetModel(QObject* parent)
    : QAbstractTableModel(parent)
    , read_(plainText) {}

void RowSetModel::setColumns(std::vector<GridColumn> columns) {
    beginResetModel();
    columns_ = std::move(columns);
    bindColumns();
    orderRows();
    endResetModel();
}

void RowSetModel::setRows(const sql::RowSet& rows) {
    beginResetModel();
    rows_ = rows;
    bindColumns();
    orderRows();
    endResetModel();
}

void RowSetModel::bindColumns() {
    sources_.clear();
    for (const auto& column : columns_) {
        sources_.push_back(rows_.columnCount() > 0 ? rows_.columnIndex(column.field.toStdString())
                                                   : std::nullopt);
    }
}

std::size_t RowSetModel::resultRow(int viewRow) const {
    return order_.empty() ? static_cast<std::size_t>(viewRow) : order_[viewRow];
}

int RowSetModel::viewRow(std::size_t resultRow) const {
    if (order_.empty()) {
        return static_cast<int>(resultRow);
    }
    const auto found = std::find(order_.begin(), order_.end(), resultRow);
    return found == order_.end() ? -1 : static_cast<int>(found - order_.begin());
}

bool RowSetModel::isNumeric(int column) const {
    if (columns_[column].numeric) {
        return true;
    }
    if (!sources_[column] || columns_[column].display != nullptr) {
        return false;
    }
    const auto type = rows_.column(*sources_[column]).type;
    return type == sql::ColumnType::Integer || type == sql::ColumnType::Float ||
           type == sql::ColumnType::Decimal;
}

QString RowSetModel::text(int viewRow, int column) const {
    const auto source = sources_[column];
    if (!source) {
        return {};
    }
    const auto stored = read_(rows_, resultRow(viewRow), *source);
    const auto display = columns_[column].display;
    return display != nullptr ? display(stored) : stored;
}

int RowSetModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.rowCount());
}

int RowSetModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant RowSetModel::data(const QModelIndex& index, int role) const {
    switch (role) {
    case Qt::DisplayRole:
        return text(index.row(), index.column());
    case Qt::TextAlignmentRole:
        return int(Qt::AlignVCenter | (isNumeric(index.column()) ? Qt::AlignRight : Qt::AlignLeft));
    default:
        return {};
    }
}

QVariant RowSetModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical) {
        return role == Qt::DisplayRole ? QVariant(section + 1) : QVariant();
    }
    switch (role) {
    case Qt::DisplayRole:
        return columns_[section].heading();
    case Qt::TextAlignmentRole:
        return int(Qt::AlignVCenter | (isNumeric(section) ? Qt::AlignRight : Qt::AlignLeft));
    default:
        return {};
    }
}

void RowSetModel::sort(int column, Qt::SortOrder order) {
    emit layoutAboutToBeChanged();
    const auto before = persistentIndexList();
    std::vector<std::size_t> rowsBefore;
    for (const auto& index : before) {
        rowsBefore.push_back(resultRow(index.row()));
    }
    sortColumn_ = column < columnCount() ? column : -1;
    sortOrder_ = order;
    orderRows();
    for (int i = 0; i < before.size(); ++i) {
        changePersistentIndex(before[i], index(viewRow(rowsBefore[i]), before[i].column()));
    }
    emit layoutChanged();
}

void RowSetModel::orderRows() {
    order_.clear();
    if (sortColumn_ < 0 || sortColumn_ >= columnCount() || !sources_[sortColumn_]) {
        return;
    }
    order_.resize(rows_.rowCount());
    std::iota(order_.begin(), order_.end(), 0U);
    if (isNumeric(sortColumn_)) {
        orderByNumber(*sources_[sortColumn_]);
    } else {
        orderByText(sortColumn_);
    }
}

void RowSetModel::orderByNumber(std::size_t source) {
    std::vector<double> keys(rows_.rowCount());
    for (std::size_t row = 0; row < keys.size(); ++row) {
        keys[row] = rows_.number(row, source);
    }
    orderByKeys(order_, keys, sortOrder_);
}

void RowSetModel::orderByText(int column) {
    const auto display = columns_[column].display;
    std::vector<QString> keys(rows_.rowCount());
    for (std::size_t row = 0; row < keys.size(); ++row) {
        const auto stored = read_(rows_, row, *sources_[column]);
        keys[row] = (display != nullptr ? display(stored) : stored).toCaseFolded();
    }
    orderByKeys(order_, keys, sortOrder_);
}

} // namespace velcro::ui
