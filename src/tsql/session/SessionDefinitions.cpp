// Statements that define tables, indexes, procedures and views: read from the tree, given to Ddl.
#include "tsql/session/PlaceNames.h"
#include "tsql/session/SessionVisit.h"
#include "tsql/values/Errors.h"

namespace velcro::sql::tsql {

namespace {

std::string slice(std::string_view text, const SourceRange& range) {
    return std::string(text.substr(range.begin, range.end - range.begin));
}

std::vector<KeyColumnSpec> keyColumns(const std::vector<IndexColumn>& columns) {
    std::vector<KeyColumnSpec> specs;
    for (const auto& column : columns) {
        specs.push_back({column.name, column.descending});
    }
    return specs;
}

} // namespace

KeySpec Session::keySpec(const Constraint& constraint, const std::string& column) {
    KeySpec key;
    key.name = constraint.name;
    key.primaryKey = constraint.kind == Constraint::Kind::PrimaryKey;
    key.clustered = constraint.clustered;
    key.columns = keyColumns(constraint.columns);
    if (key.columns.empty()) {
        key.columns.push_back({column, false});
    }
    return key;
}

DefaultSpec Session::defaultSpec(const Constraint& constraint, const Type& type, Place& place) {
    return {constraint.name, slice(place.text, constraint.expr.source),
            Emitter(PlaceNames(*this, place), Literals::Inline)
                .constantText(*constraint.expr.expr, type)};
}

ColumnSpec Session::columnSpec(const ColumnDefinition& column, Place& place,
                               std::vector<KeySpec>& keys) {
    ColumnSpec spec;
    spec.name = column.name;
    spec.type = declaredType(column.type, line_);
    spec.nullable = column.nullable;
    if (column.identity) {
        spec.identity = IdentityDef{column.identity->seed, column.identity->increment};
    }
    for (const auto& constraint : column.constraints) {
        if (constraint.kind == Constraint::Kind::Default) {
            spec.defaultValue = defaultSpec(constraint, spec.type, place);
        } else {
            keys.push_back(keySpec(constraint, column.name));
        }
    }
    return spec;
}

std::vector<ColumnSpec> Session::columnSpecs(const std::vector<ColumnDefinition>& columns,
                                             Place& place, std::vector<KeySpec>& keys) {
    std::vector<ColumnSpec> specs;
    for (const auto& column : columns) {
        specs.push_back(columnSpec(column, place, keys));
    }
    return specs;
}

/// Temporary tables are kept beside the catalogue, without the names of their constraints.
void Session::makeTable(const std::string& name, const std::vector<ColumnSpec>& columns,
                        const std::vector<KeySpec>& keys) {
    if (!TemporaryTables::isTemporary(name)) {
        ddl_.createTable(name, columns, keys);
        return;
    }
    TableDef table;
    table.name = name;
    for (const auto& spec : columns) {
        ColumnDef column;
        column.id = static_cast<int>(table.columns.size()) + 1;
        column.name = spec.name;
        column.type = spec.type;
        column.nullable = spec.nullable.value_or(!spec.identity);
        column.identity = spec.identity;
        if (spec.defaultValue) {
            column.defaultValue =
                DefaultDef{0, {}, spec.defaultValue->text, spec.defaultValue->sqlite, true};
        }
        table.columns.push_back(std::move(column));
    }
    temporary_.create(std::move(table), keys);
}

Session::Flow Session::execute(const CreateTable& create, Place& place) {
    std::vector<KeySpec> keys;
    const auto columns = columnSpecs(create.columns, place, keys);
    for (const auto& constraint : create.constraints) {
        keys.push_back(keySpec(constraint, {}));
    }
    if (TemporaryTables::isTemporary(create.name.name)) {
        makeTable(create.name.name, columns, keys);
        return Flow::Normal;
    }
    return define(place, [&] { makeTable(create.name.name, columns, keys); });
}

Session::Flow Session::execute(const AlterTable& alter, Place& place) {
    if (TemporaryTables::isTemporary(alter.table.name)) {
        raiseUnsupported("ALTER TABLE of a temporary table", line_);
    }
    return define(place, [&] {
        std::visit([&](const auto& action) { this->alter(alter.table.name, action, place); },
                   alter.action);
    });
}

void Session::alter(const std::string& table, const AlterTableAdd& add, Place& place) {
    std::vector<KeySpec> keys;
    const auto columns = columnSpecs(add.columns, place, keys);
    if (!columns.empty()) {
        ddl_.addColumns(table, columns);
    }
    for (const auto& constraint : add.constraints) {
        if (constraint.kind != Constraint::Kind::Default) {
            keys.push_back(keySpec(constraint, {}));
        } else {
            const TableDef* target = catalogue_.table(table);
            const ColumnDef* column =
                target == nullptr ? nullptr : target->column(constraint.forColumn);
            const Type type = column == nullptr ? Type() : column->type;
            ddl_.addDefault(table, constraint.forColumn, defaultSpec(constraint, type, place));
        }
    }
    for (const auto& key : keys) {
        ddl_.addKey(table, key);
    }
}

void Session::alter(const std::string& table, const AlterTableAlterColumn& column, Place&) {
    ddl_.alterColumn(table, column.column, declaredType(column.type, line_), column.nullable);
}

void Session::alter(const std::string& table, const AlterTableDrop& drop, Place&) {
    for (const auto& item : drop.items) {
        if (item.isColumn) {
            ddl_.dropColumns(table, {item.name}, item.ifExists);
        } else {
            ddl_.dropConstraint(table, item.name, item.ifExists);
        }
    }
}

/// There are no constraints here that could be switched off.
void Session::alter(const std::string& table, const AlterTableCheck&, Place&) {
    if (catalogue_.table(table) == nullptr) {
        raise(4902, {table}, line_);
    }
}

Session::Flow Session::execute(const CreateIndex& create, Place& place) {
    IndexSpec index;
    index.name = create.name;
    index.unique = create.unique;
    index.clustered = create.clustered.value_or(false);
    index.columns = keyColumns(create.columns);
    index.included = create.included;
    for (const auto& option : create.options) {
        index.dropExisting =
            index.dropExisting || (option.name == "DROP_EXISTING" && option.value == "ON");
    }
    if (TemporaryTables::isTemporary(create.table.name)) {
        temporary_.createIndex(create.table.name, index);
        return Flow::Normal;
    }
    return define(place, [&] { ddl_.createIndex(create.table.name, index); });
}

Session::Flow Session::execute(const DropIndex& drop, Place& place) {
    return define(place, [&] {
        for (const auto& item : drop.items) {
            ddl_.dropIndex(item.table.name, item.name, drop.ifExists);
        }
    });
}

Session::Flow Session::execute(const DropObject& drop, Place& place) {
    return define(place, [&] {
        for (const auto& name : drop.names) {
            switch (drop.kind) {
            case DropObject::Kind::Table:
                if (!temporary_.drop(name.name)) {
                    ddl_.dropTable(name.name, drop.ifExists);
                }
                break;
            case DropObject::Kind::Procedure:
                ddl_.dropProcedure(name.name, drop.ifExists);
                break;
            case DropObject::Kind::View:
                ddl_.dropView(name.name, drop.ifExists);
                break;
            }
        }
    });
}

Session::Flow Session::execute(const CreateProcedure& create, Place& place) {
    return define(place, [&] {
        if (create.mode == DefineMode::Alter && catalogue_.procedure(create.name.name) == nullptr) {
            raise(208, {create.name.name}, line_);
        }
        ddl_.createProcedure(create.name.name, slice(place.text, create.source),
                             create.mode != DefineMode::Create);
    });
}

Session::Flow Session::execute(const CreateView& create, Place& place) {
    return define(place, [&] {
        if (create.mode != DefineMode::Create) {
            ddl_.dropView(create.name.name, create.mode == DefineMode::CreateOrAlter);
        }
        const Translation rows = translated(place, [&](const PlaceNames& names) {
            return Emitter(names, Literals::Inline).view(create.select, create.columns);
        });
        std::vector<ColumnSpec> columns;
        for (const auto& column : rows.columns) {
            columns.push_back({column.name, column.type, true, {}, {}});
        }
        ddl_.createView(create.name.name, slice(place.text, create.source), rows.text, columns);
    });
}

} // namespace velcro::sql::tsql
