#include "data/Statement.h"

#include "data/Errors.h"

#include <utility>

using velcro::sql::ColumnType;
using velcro::sql::RowSet;

namespace {

/// Whether the text holds :Name, and not as the beginning of a longer name.
bool holdsMark(const QString& text, const QString& name) {
    const QString mark = QLatin1Char(':') + name;
    for (auto at = text.indexOf(mark, 0, Qt::CaseInsensitive); at >= 0;
         at = text.indexOf(mark, at + 1, Qt::CaseInsensitive)) {
        const auto end = at + mark.size();
        if (end == text.size() ||
            !(text[end].isLetterOrNumber() || text[end] == QLatin1Char('_'))) {
            return true;
        }
    }
    return false;
}

} // namespace

QString cellText(const RowSet& rows, std::size_t row, std::size_t column) {
    const auto type = rows.column(column).type;
    if (type == ColumnType::DateTime || type == ColumnType::Date) {
        // yyyy-mm-dd[ hh:mm:ss.mmm]
        const auto cell = rows.bytes(row, column);
        QString text =
            QString::fromLatin1(cell.data(), qsizetype(std::min<size_t>(19, cell.size())));
        text.replace(QLatin1Char('-'), QLatin1Char('/'));
        return text.endsWith(QLatin1String(" 00:00:00")) ? text.left(10) : text;
    }
    if (type == ColumnType::Text || type == ColumnType::Blob) {
        const auto cell = rows.bytes(row, column);
        return QString::fromUtf8(cell.data(), qsizetype(cell.size()));
    }
    return QString::fromStdString(rows.text(row, column));
}

bool Field::IsNull() const {
    return statement_->rows_.isNull(statement_->row_, column_);
}

QString Field::AsString() const {
    return cellText(statement_->rows_, statement_->row_, column_);
}

int Field::AsInteger() const {
    const RowSet& rows = statement_->rows_;
    if (rows.column(column_).type != ColumnType::Text) {
        return int(rows.integer(statement_->row_, column_));
    }
    const QString text = AsString();
    return text.trimmed().isEmpty() ? 0 : StrToInt(text);
}

double Field::AsFloat() const {
    const RowSet& rows = statement_->rows_;
    if (rows.column(column_).type != ColumnType::Text) {
        return rows.number(statement_->row_, column_);
    }
    const QString text = AsString();
    return text.trimmed().isEmpty() ? 0 : StrToFloat(text);
}

QByteArray Field::AsBytes() const {
    const auto cell = statement_->rows_.bytes(statement_->row_, column_);
    return {cell.data(), qsizetype(cell.size())};
}

QString Field::name() const {
    return QString::fromStdString(statement_->rows_.column(column_).name);
}

void BoundValue::setString(const QString& value) {
    parameter_->value = value.toStdString();
}

void BoundValue::setInteger(qint64 value) {
    parameter_->value = std::int64_t{value};
}

void BoundValue::setFloat(double value) {
    parameter_->value = value;
}

void BoundValue::setBytes(const QByteArray& value) {
    parameter_->value = velcro::sql::Blob{value.toStdString()};
}

void BoundValue::setNull() {
    parameter_->value = std::monostate{};
}

Statement::Statement(Connection& connection, Use use)
    : connection_(&connection)
    , use_(use) {
    connection.statements_.append(this);
}

Statement::~Statement() {
    if (connection_) {
        connection_->statements_.removeOne(this);
    }
}

void Statement::setText(const QStringList& lines) {
    Close();
    SQL = TextLines(lines);
    parameters_.clear();
}

void Statement::Open(const QStringList& lines) {
    setText(lines);
    Open();
}

void Statement::Open() {
    Close();
    for (auto& result : connection_->run(SQL.Text(), parameters_)) {
        if (result.rows) {
            rows_ = std::move(*result.rows);
            break;
        }
    }
    active_ = true;
    First();
}

void Statement::Close() {
    rows_ = RowSet();
    active_ = false;
    row_ = 0;
    bof_ = eof_ = true;
}

void Statement::ExecSQL() {
    Close();
    affected_ = 0;
    for (const auto& result : connection_->run(SQL.Text(), parameters_)) {
        affected_ += std::max<std::int64_t>(0, result.affected);
    }
}

void Statement::First() {
    row_ = 0;
    bof_ = true;
    eof_ = IsEmpty();
}

void Statement::Last() {
    row_ = IsEmpty() ? 0 : rows_.rowCount() - 1;
    bof_ = IsEmpty();
    eof_ = true;
}

void Statement::Next() {
    bof_ = IsEmpty();
    if (row_ + 1 < rows_.rowCount()) {
        ++row_;
    } else {
        eof_ = true;
    }
}

void Statement::Prior() {
    eof_ = IsEmpty();
    if (row_ > 0) {
        --row_;
    } else {
        bof_ = true;
    }
}

void Statement::setRecNo(int recNo) {
    if (recNo >= 1 && recNo <= RecordCount()) {
        row_ = std::size_t(recNo) - 1;
        bof_ = eof_ = false;
    }
}

bool Statement::Locate(const QString& field, const QString& value) {
    const auto column = rows_.columnIndex(field.toStdString());
    if (!column) {
        return false;
    }
    for (std::size_t row = 0; row < rows_.rowCount(); ++row) {
        if (cellText(rows_, row, *column) == value) {
            setRecNo(int(row) + 1);
            return true;
        }
    }
    return false;
}

bool Statement::Locate(const QString& field, qint64 value) {
    return Locate(field, QString::number(value));
}

Field Statement::FieldByName(const QString& name) const {
    const auto column = rows_.columnIndex(name.toStdString());
    if (!column) {
        throw VelmaraError(QStringLiteral("Field '%1' not found").arg(name));
    }
    return Fields(int(*column));
}

Field Statement::Fields(int index) const {
    if (index < 0 || std::size_t(index) >= rows_.columnCount()) {
        throw VelmaraError(QStringLiteral("Field %1 not found").arg(index));
    }
    if (IsEmpty()) {
        throw VelmaraError(QStringLiteral("The result has no row to read from"));
    }
    return {*this, std::size_t(index)};
}

bool Statement::HasField(const QString& name) const {
    return rows_.columnIndex(name.toStdString()).has_value();
}

BoundValue Statement::ParamByName(const QString& name) {
    for (auto& parameter : parameters_) {
        if (name.compare(QString::fromStdString(parameter.name), Qt::CaseInsensitive) == 0) {
            return BoundValue(parameter);
        }
    }
    if (use_ == Use::Reader || !holdsMark(SQL.Text(), name)) {
        throw VelmaraError(QStringLiteral("Parameter '%1' not found").arg(name));
    }
    parameters_.push_back({name.toStdString(), std::monostate{}});
    return BoundValue(parameters_.back());
}
