// How a value comes to stand in the text: placed as a bind or converted by a function.
#include "tsql/translate/Emitter.h"
#include "tsql/translate/SqliteText.h"
#include "tsql/values/Collation.h"

namespace velcro::sql::tsql {

namespace {

/// Values of one family are kept alike in SQLite and compare without a conversion.
int family(const Type& type) {
    if (type.isText()) {
        return 1;
    }
    if (type.isNumber()) {
        return 2;
    }
    if (type.isBinary() || type.id == TypeId::RowVersion) {
        return 3;
    }
    return 100 + static_cast<int>(type.id);
}

bool losesNothing(const Type& from, const Type& to) {
    if (from == to || to.id == TypeId::SqlVariant) {
        return true;
    }
    if (to.isText() && to.id != TypeId::Char && to.id != TypeId::NChar) {
        const bool fits = to.length <= 0 || (from.length > 0 && from.length <= to.length);
        return from.isText() && fits;
    }
    if (to.isInteger()) {
        return from.isInteger() && from.id <= to.id;
    }
    return to.id == TypeId::Float && from.id == TypeId::Real;
}

} // namespace

std::string Emitter::place(Bind bind) {
    const bool constant = bind.source == Bind::Source::Constant;
    if (constant && !bind.to.isNull()) {
        bind.value = bind.store ? convertForColumn(std::move(bind.value), bind.from, bind.to,
                                                   {bind.store->table, bind.store->column})
                                : convert(std::move(bind.value), bind.from, bind.to);
        bind.to = {};
        bind.store.reset();
    }
    if (literals_ == Literals::Inline) {
        if (!constant) {
            raise(128, {bind.name}, line_);
        }
        return sqliteLiteral(bind.value);
    }
    binds_.push_back(std::move(bind));
    return fromOutside("?" + std::to_string(binds_.size()));
}

std::string Emitter::placed(Fragment fragment) {
    return fragment.bind ? place(std::move(*fragment.bind)) : std::move(fragment.text);
}

std::string Emitter::as(Fragment fragment, const Type& target) {
    const bool narrowsNumber =
        target.isInteger() && fragment.type.isNumber() && !losesNothing(fragment.type, target);
    const bool same = target.isNull() || target.id == TypeId::SqlVariant ||
                      (family(fragment.type) == family(target) && !narrowsNumber);
    if (fragment.type.isNull() || same) {
        return placed(std::move(fragment));
    }
    requireImplicit(fragment.type, target);
    if (fragment.bind) {
        fragment.bind->to = target;
        return place(std::move(*fragment.bind));
    }
    return castText(fragment.text, fragment.type, target);
}

std::string Emitter::asText(Fragment fragment) {
    return as(std::move(fragment), nvarcharType(openTextLength));
}

/// Division of two integers would stay an integer in SQLite.
std::string Emitter::asReal(Fragment fragment) {
    const bool integer = fragment.type.isInteger();
    std::string text = as(std::move(fragment), floatType);
    return integer ? "CAST(" + text + " AS REAL)" : text;
}

std::string Emitter::stored(Fragment fragment, const TableDef& table, const ColumnDef& column) {
    if (fragment.bind) {
        fragment.bind->to = column.type;
        fragment.bind->store = StoreTarget{names_.fullName(table), column.name};
        return place(std::move(*fragment.bind));
    }
    if (fragment.type.isNull() || losesNothing(fragment.type, column.type)) {
        return fragment.text;
    }
    requireImplicit(fragment.type, column.type);
    return "ts_store(" + fragment.text + "," + std::to_string(fragment.type.code()) + "," +
           std::to_string(column.type.code()) + "," + quoteText(table.name) + "," +
           quoteText(column.name) + ")";
}

/// Text that does not carry the collation by itself gets it where order or equality matters.
std::string Emitter::collatedText(const Fragment& fragment, std::string text) {
    if (!fragment.type.isCollated() || fragment.collated) {
        return text;
    }
    return text + " COLLATE " + std::string(collationName);
}

} // namespace velcro::sql::tsql
