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

CellType typeOf(sql::ColumnType type) {
    switch (type) {
    case sql::ColumnType::Integer:
        return CellType::Whole;
    case sql::ColumnType::Float:
    case sql::ColumnType::Decimal:
        return CellType::Decimal;
    case sql::ColumnType::Date:
    case sql::ColumnType::DateTime:
        return CellType::Date;
    default:
        return CellType::Text;
    }
}

/// yyyy/mm/dd or yyyy-mm-dd, with hh:mm[:ss[.mmm]] after a blank or without; invalid otherwise.
QDateTime dateOf(QString text) {
    text.replace(QLatin1Char('/'), QLatin1Char('-'));
    const auto blank = text.indexOf(QLatin1Char(' '));
    const auto date = QDate::fromString(text.left(blank), Qt::ISODate);
    const auto time = blank < 0 ? QTime(0, 0) : QTime::fromString(text.mid(blank + 1), Qt::ISODate);
    return date.isValid() && time.isValid() ? QDateTime(date, time, Qt::UTC) : QDateTime();
}

CellValue typedValue(const QString& text, CellType type) {
    bool reads = false;
    switch (type) {
    case CellType::Whole:
        if (const qint64 whole = text.toLongLong(&reads); reads) {
            return whole;
        }
        break;
    case CellType::Decimal:
        if (const double decimal = text.toDouble(&reads); reads) {
            return decimal;
        }
        break;
    case CellType::Date:
        if (const auto date = dateOf(text); date.isValid()) {
            return date;
        }
        break;
    default:
        break;
    }
    return text;
}

const QString ticked = QStringLiteral("Y");

} // namespace

RowSetModel::RowSetModel(QObject* parent)
    : QAbstractTableModel(parent)
    , read_(plainText) {}

void RowSetModel::setColumns(std::vector<GridColumn> columns) {
    beginResetModel();
    columns_ = std::move(columns);
    edits_.clear();
    bindColumns();
    arrange();
    endResetModel();
}

void RowSetModel::setRows(const sql::RowSet& rows) {
    beginResetModel();
    rows_ = rows;
    edits_.clear();
    bindColumns();
    arrange();
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
    return arranged_ ? order_[viewRow] : static_cast<std::size_t>(viewRow);
}

int RowSetModel::viewRow(std::size_t resultRow) const {
    if (!arranged_) {
        return static_cast<int>(resultRow);
    }
    const auto found = std::find(order_.begin(), order_.end(), resultRow);
    return found == order_.end() ? -1 : static_cast<int>(found - order_.begin());
}

int RowSetModel::columnOf(const QString& name) const {
    const auto find = [&](auto nameOf) {
        const auto found = std::ranges::find_if(columns_, [&](const GridColumn& column) {
            return nameOf(column).compare(name, Qt::CaseInsensitive) == 0;
        });
        return found == columns_.end() ? -1 : static_cast<int>(found - columns_.begin());
    };
    const int byField = find([](const GridColumn& column) { return column.field; });
    return byField >= 0 ? byField : find([](const GridColumn& column) { return column.heading(); });
}

CellType RowSetModel::cellType(int column) const {
    const auto& declared = columns_[column];
    if (declared.type != CellType::AsRead) {
        return declared.type;
    }
    if (declared.display != nullptr) {
        return CellType::Text;
    }
    const auto source = sources_[column];
    return source ? typeOf(rows_.column(*source).type) : CellType::Text;
}

bool RowSetModel::isNumeric(int column) const {
    const auto type = cellType(column);
    return type == CellType::Whole || type == CellType::Decimal;
}

const QString* RowSetModel::edited(std::size_t resultRow, int column) const {
    if (edits_.empty()) {
        return nullptr;
    }
    const auto found = edits_.find({resultRow, column});
    return found == edits_.end() ? nullptr : &found->second;
}

QString RowSetModel::stored(std::size_t resultRow, int column) const {
    if (const auto* text = edited(resultRow, column)) {
        return *text;
    }
    const auto source = sources_[column];
    return source ? read_(rows_, resultRow, *source) : QString();
}

QString RowSetModel::shown(std::size_t resultRow, int column) const {
    const auto display = columns_[column].display;
    const auto text = stored(resultRow, column);
    return display != nullptr ? display(text) : text;
}

QString RowSetModel::text(int viewRow, int column) const {
    return shown(resultRow(viewRow), column);
}

// Numbers are taken as they were read, without a text in between.
CellValue RowSetModel::value(int viewRow, int column) const {
    const auto row = resultRow(viewRow);
    const auto type = cellType(column);
    if (type == CellType::Tick) {
        return isTicked(row, column);
    }
    const auto source = sources_[column];
    if (source && edited(row, column) == nullptr) {
        if (rows_.isNull(row, *source)) {
            return {};
        }
        const auto held = rows_.column(*source).type;
        if (type == CellType::Whole && held == sql::ColumnType::Integer) {
            return static_cast<qint64>(rows_.integer(row, *source));
        }
        if (type == CellType::Decimal && held == sql::ColumnType::Float) {
            return rows_.number(row, *source);
        }
    }
    const auto text = shown(row, column);
    return text.isEmpty() ? CellValue() : typedValue(text, type);
}

void RowSetModel::setStored(std::size_t resultRow, int column, const QString& text) {
    edits_[{resultRow, column}] = text;
    if (const int row = viewRow(resultRow); row >= 0) {
        emit dataChanged(index(row, column), index(row, column));
    }
}

void RowSetModel::setTicked(std::size_t resultRow, int column, bool on) {
    setStored(resultRow, column, on ? ticked : QString());
}

bool RowSetModel::isTicked(std::size_t resultRow, int column) const {
    return stored(resultRow, column) == ticked;
}

int RowSetModel::rowCount(const QModelIndex& parent) const {
    if (parent.isValid()) {
        return 0;
    }
    return static_cast<int>(arranged_ ? order_.size() : rows_.rowCount());
}

int RowSetModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

// A screen reader says the tick with what is ticked, which stands in the next column.
QString RowSetModel::spokenTick(std::size_t resultRow, int column) const {
    const auto what = column + 1 < columnCount() ? shown(resultRow, column + 1) : QString();
    return what + (isTicked(resultRow, column) ? QStringLiteral(" ticked")
                                               : QStringLiteral(" not ticked"));
}

QVariant RowSetModel::data(const QModelIndex& index, int role) const {
    const bool tick = columns_[index.column()].type == CellType::Tick;
    switch (role) {
    case Qt::DisplayRole:
        return tick ? QString() : text(index.row(), index.column());
    case Qt::EditRole:
        return stored(resultRow(index.row()), index.column());
    case Qt::CheckStateRole:
        if (tick) {
            return isTicked(resultRow(index.row()), index.column()) ? Qt::Checked : Qt::Unchecked;
        }
        return {};
    case Qt::AccessibleTextRole:
        if (tick) {
            return spokenTick(resultRow(index.row()), index.column());
        }
        return {};
    case Qt::AccessibleDescriptionRole:
        if (!tick && columns_[index.column()].editable) {
            return QStringLiteral("Can be typed over");
        }
        return {};
    case Qt::TextAlignmentRole:
        return int(Qt::AlignVCenter | (isNumeric(index.column()) ? Qt::AlignRight : Qt::AlignLeft));
    default:
        return {};
    }
}

bool RowSetModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!columns_[index.column()].editable) {
        return false;
    }
    const auto row = resultRow(index.row());
    if (role == Qt::CheckStateRole) {
        setTicked(row, index.column(), value.toInt() == Qt::Checked);
        return true;
    }
    if (role == Qt::EditRole) {
        setStored(row, index.column(), value.toString());
        return true;
    }
    return false;
}

Qt::ItemFlags RowSetModel::flags(const QModelIndex& index) const {
    auto flags = QAbstractTableModel::flags(index);
    if (index.isValid() && columns_[index.column()].editable) {
        flags |= columns_[index.column()].type == CellType::Tick ? Qt::ItemIsUserCheckable
                                                                 : Qt::ItemIsEditable;
    }
    return flags;
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

void RowSetModel::setFilter(RowFilter filter) {
    filter_ = std::move(filter);
    rearrange();
}

void RowSetModel::setTextFilter(const QString& text) {
    if (text.isEmpty()) {
        setFilter({});
        return;
    }
    setFilter([this, text](std::size_t row) {
        for (int i = 0; i < columnCount(); ++i) {
            if (columns_[i].visible && shown(row, i).contains(text, Qt::CaseInsensitive)) {
                return true;
            }
        }
        return false;
    });
}

void RowSetModel::sort(int column, Qt::SortOrder order) {
    sortColumn_ = column < columnCount() ? column : -1;
    sortOrder_ = order;
    rearrange();
}

// The user stays on the row that he stands on, as long as it is shown.
void RowSetModel::rearrange() {
    emit layoutAboutToBeChanged();
    const auto before = persistentIndexList();
    std::vector<std::size_t> rowsBefore;
    for (const auto& index : before) {
        rowsBefore.push_back(resultRow(index.row()));
    }
    arrange();
    for (int i = 0; i < before.size(); ++i) {
        const int row = viewRow(rowsBefore[i]);
        changePersistentIndex(before[i], row < 0 ? QModelIndex() : index(row, before[i].column()));
    }
    emit layoutChanged();
}

void RowSetModel::arrange() {
    const bool sorted = sortColumn_ >= 0 && sortColumn_ < columnCount();
    arranged_ = filter_ || sorted;
    order_.clear();
    if (!arranged_) {
        return;
    }
    order_.resize(rows_.rowCount());
    std::iota(order_.begin(), order_.end(), 0U);
    if (filter_) {
        std::erase_if(order_, [this](auto row) { return !filter_(row); });
    }
    if (!sorted) {
        return;
    }
    const auto sortBy = [this](auto key) {
        std::vector<decltype(key(std::size_t()))> keys(rows_.rowCount());
        for (const auto row : order_) {
            keys[row] = key(row);
        }
        orderByKeys(order_, keys, sortOrder_);
    };
    if (isNumeric(sortColumn_)) {
        sortBy([this](std::size_t row) { return number(row, sortColumn_); });
    } else {
        sortBy([this](std::size_t row) { return shown(row, sortColumn_).toCaseFolded(); });
    }
}

double RowSetModel::number(std::size_t resultRow, int column) const {
    const auto* text = edited(resultRow, column);
    if (text != nullptr || !sources_[column]) {
        return text != nullptr ? text->toDouble() : 0;
    }
    return rows_.number(resultRow, *sources_[column]);
}

} // namespace velcro::ui
