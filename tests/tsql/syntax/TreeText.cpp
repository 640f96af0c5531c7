#include "tsql/syntax/TreeText.h"

#include "tsql/syntax/TreeTextQuery.h"

namespace velcro::sql::tsql {

namespace {

using namespace tree_text;

/// One function a statement.
struct StatementText : QueryText
{
    using QueryText::operator();

    std::string output(const std::vector<SelectItem>& list) const {
        return list.empty() ? "" : " OUTPUT " + items(list);
    }
    std::string set(const std::vector<Assignment>& list) const {
        return joined(list, [this](const Assignment& entry) {
            const std::string op = " " + std::string(assignOps[int(entry.op)]) + " ";
            std::string result = entry.variable;
            if (!entry.column.empty()) {
                result += (result.empty() ? "" : " = ") + dotted(entry.column);
            }
            return result + op + of(entry.value);
        });
    }
    std::string operator()(const Select& node) const {
        return with(node.with) + query(*node.query) + option(node.hints);
    }
    std::string operator()(const Insert& node) const {
        std::string result = with(node.with) + "INSERT INTO " + object(node.table) +
                             optionalNames(node.columns) + output(node.output) + " ";
        if (node.query) {
            result += query(*node.query);
        } else if (node.execute) {
            result += (*this)(*node.execute);
        } else if (node.executeText) {
            result += (*this)(*node.executeText);
        } else {
            result += node.rows.empty() ? "DEFAULT VALUES" : rows(node.rows);
        }
        return result + option(node.hints);
    }
    std::string operator()(const Update& node) const {
        return with(node.with) + "UPDATE" + top(node.top) + " " + object(node.target) +
               hints(node.targetHints) + " SET " + set(node.set) + output(node.output) +
               from(node.from) + optional(" WHERE ", node.where) + option(node.hints);
    }
    std::string operator()(const Delete& node) const {
        return with(node.with) + "DELETE" + top(node.top) + " FROM " + object(node.target) +
               hints(node.targetHints) + output(node.output) + from(node.from) +
               optional(" WHERE ", node.where) + option(node.hints);
    }
    std::string when(const MergeWhen& when) const {
        static constexpr std::string_view matches[] = {"MATCHED", "NOT MATCHED",
                                                       "NOT MATCHED BY SOURCE"};
        std::string result = " WHEN " + std::string(matches[int(when.match)]) +
                             optional(" AND ", when.condition) + " THEN ";
        switch (when.action) {
        case MergeWhen::Action::Update:
            return result + "UPDATE SET " + set(when.set);
        case MergeWhen::Action::Delete:
            return result + "DELETE";
        default:
            return result + "INSERT" + optionalNames(when.columns) +
                   (when.values.empty() ? " DEFAULT VALUES"
                                        : " VALUES (" + list(when.values) + ")");
        }
    }
    std::string operator()(const Merge& node) const {
        std::string result = with(node.with) + "MERGE INTO " + object(node.target.name) +
                             hints(node.target.hints) + alias(node.target.alias) + " USING " +
                             source(node.source) + " ON " + of(node.on);
        for (const MergeWhen& entry : node.when) {
            result += when(entry);
        }
        return result + option(node.hints);
    }
    std::string operator()(const TruncateTable& node) const {
        return "TRUNCATE TABLE " + object(node.table);
    }
    /// Where no brackets may stand.
    std::string constant(const ExprPtr& value) const {
        const auto* sign = std::get_if<Unary>(&value->node);
        return sign ? std::string(unaryOps[int(sign->op)]) + of(sign->operand) : of(value);
    }
    std::string argument(const Argument& argument) const {
        return (argument.name.empty() ? "" : argument.name + " = ") + constant(argument.value) +
               (argument.output ? " OUTPUT" : "");
    }
    std::string operator()(const Execute& node) const {
        return "EXEC " + (node.result.empty() ? "" : node.result + " = ") + object(node.procedure) +
               (node.arguments.empty() ? "" : " ") +
               joined(node.arguments, [this](const Argument& entry) { return argument(entry); });
    }
    std::string operator()(const ExecuteText& node) const { return "EXEC (" + of(node.text) + ")"; }

    // ---- definitions ----
    static std::string clustering(const std::optional<bool>& clustered) {
        return !clustered ? "" : *clustered ? " CLUSTERED" : " NONCLUSTERED";
    }
    static std::string columns(const std::vector<IndexColumn>& columns) {
        return columns.empty() ? ""
                               : " (" + joined(columns, [](const IndexColumn& column) {
                                     return name(column.name) + (column.descending ? " DESC" : "");
                                 }) + ")";
    }
    static std::string options(const std::vector<IndexOption>& options) {
        return options.empty() ? "" : " WITH (" + joined(options, [](const IndexOption& entry) {
                                          return entry.name + " = " + entry.value;
                                      }) + ")";
    }
    static std::string on(std::string_view keyword, const std::string& filegroup) {
        return filegroup.empty() ? "" : " " + std::string(keyword) + " " + name(filegroup);
    }
    std::string constraint(const Constraint& node) const {
        std::string result = node.name.empty() ? "" : "CONSTRAINT " + name(node.name) + " ";
        const std::string key = clustering(node.clustered) + columns(node.columns) +
                                options(node.options) + on("ON", node.filegroup);
        switch (node.kind) {
        case Constraint::Kind::PrimaryKey:
            return result + "PRIMARY KEY" + key;
        case Constraint::Kind::Unique:
            return result + "UNIQUE" + key;
        default:
            return result + "DEFAULT " + of(node.expr.expr) +
                   (node.forColumn.empty() ? "" : " FOR " + name(node.forColumn));
        }
    }
    static std::string nullable(const std::optional<bool>& nullable) {
        return !nullable ? "" : *nullable ? " NULL" : " NOT NULL";
    }
    std::string column(const ColumnDefinition& node) const {
        std::string result = name(node.name) + " " + type(node.type);
        result += node.collation.empty() ? "" : " COLLATE " + name(node.collation);
        if (node.identity) {
            result += " IDENTITY(" + std::to_string(node.identity->seed) + ", " +
                      std::to_string(node.identity->increment) + ")";
        }
        result += std::string(node.rowGuid ? " ROWGUIDCOL" : "") + nullable(node.nullable);
        for (const Constraint& entry : node.constraints) {
            result += " " + constraint(entry);
        }
        return result;
    }
    std::string elements(const std::vector<ColumnDefinition>& columns,
                         const std::vector<Constraint>& constraints) const {
        std::string result =
            joined(columns, [this](const ColumnDefinition& entry) { return column(entry); });
        for (const Constraint& entry : constraints) {
            result += (result.empty() ? "" : ", ") + constraint(entry);
        }
        return result;
    }
    std::string operator()(const CreateTable& node) const {
        return "CREATE TABLE " + object(node.name) + " (" +
               elements(node.columns, node.constraints) + ")" + on("ON", node.filegroup) +
               on("TEXTIMAGE_ON", node.textFilegroup);
    }
    std::string operator()(const AlterTableAdd& node) const {
        return "ADD " + elements(node.columns, node.constraints) +
               (node.withValues ? " WITH VALUES" : "");
    }
    std::string operator()(const AlterTableAlterColumn& node) const {
        return "ALTER COLUMN " + name(node.column) + " " + type(node.type) +
               (node.collation.empty() ? "" : " COLLATE " + name(node.collation)) +
               nullable(node.nullable);
    }
    std::string operator()(const AlterTableDrop& node) const {
        return "DROP " + joined(node.items, [](const AlterTableDrop::Item& item) {
                   return std::string(item.isColumn ? "COLUMN " : "CONSTRAINT ") +
                          (item.ifExists ? "IF EXISTS " : "") + name(item.name);
               });
    }
    std::string operator()(const AlterTableCheck& node) const {
        return std::string(node.check ? "CHECK" : "NOCHECK") + " CONSTRAINT " +
               (node.constraints.empty() ? "ALL" : names(node.constraints));
    }
    std::string operator()(const AlterTable& node) const {
        return "ALTER TABLE " + object(node.table) + " " + std::visit(*this, node.action);
    }
    std::string operator()(const CreateIndex& node) const {
        return std::string("CREATE") + (node.unique ? " UNIQUE" : "") + clustering(node.clustered) +
               " INDEX " + name(node.name) + " ON " + object(node.table) + columns(node.columns) +
               (node.included.empty() ? "" : " INCLUDE (" + names(node.included) + ")") +
               options(node.options) + on("ON", node.filegroup);
    }
    std::string operator()(const DropIndex& node) const {
        return std::string("DROP INDEX ") + (node.ifExists ? "IF EXISTS " : "") +
               joined(node.items, [](const DropIndex::Item& item) {
                   return name(item.name) + " ON " + object(item.table);
               });
    }
    std::string operator()(const DropObject& node) const {
        static constexpr std::string_view kinds[] = {"TABLE", "VIEW", "PROCEDURE"};
        return "DROP " + std::string(kinds[int(node.kind)]) +
               (node.ifExists ? " IF EXISTS " : " ") +
               joined(node.names, [](const ObjectName& entry) { return object(entry); });
    }
    static std::string mode(DefineMode mode) {
        static constexpr std::string_view modes[] = {"CREATE", "ALTER", "CREATE OR ALTER"};
        return std::string(modes[int(mode)]);
    }
    std::string operator()(const CreateProcedure& node) const {
        return mode(node.mode) + " PROCEDURE " + object(node.name) +
               (node.parameters.empty() ? "" : " ") +
               joined(node.parameters,
                      [this](const ProcedureParameter& entry) {
                          return entry.name + " " + type(entry.type) +
                                 (entry.defaultValue ? " = " + constant(entry.defaultValue) : "") +
                                 (entry.output ? " OUTPUT" : "");
                      }) +
               " AS " + statements(node.statements);
    }
    std::string operator()(const CreateView& node) const {
        return mode(node.mode) + " VIEW " + object(node.name) + optionalNames(node.columns) +
               " AS " + (*this)(node.select);
    }

    // ---- control flow ----
    std::string statements(const std::vector<StatementPtr>& list) const {
        return joined(
            list, [this](const StatementPtr& entry) { return statement(entry); }, " ");
    }
    std::string statement(const StatementPtr& node) const {
        std::string result = std::visit(*this, node->node);
        return result.ends_with(';') ? result : result + ";";
    }
    std::string operator()(const Declare& node) const {
        return "DECLARE " + joined(node.items, [this](const Declare::Item& item) {
                   return item.name + " " +
                          (item.table
                               ? "TABLE (" +
                                     elements(item.table->columns, item.table->constraints) + ")"
                               : type(item.type) + optional(" = ", item.value));
               });
    }
    std::string operator()(const SetVariable& node) const {
        return "SET " + node.name + " " + std::string(assignOps[int(node.op)]) + " " +
               of(node.value);
    }
    static std::string optionValue(const std::string& value) {
        const bool words = value.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ_ @-0123456789") ==
                           std::string::npos;
        return words && !value.empty() ? value : "'" + doubled(value, '\'') + "'";
    }
    std::string operator()(const SetOption& node) const {
        return "SET " + joined(node.names, [](const std::string& entry) { return entry; }) +
               (node.table.name.empty() ? "" : " " + object(node.table)) + " " +
               optionValue(node.value);
    }
    std::string operator()(const If& node) const {
        return "IF " + of(node.condition) + " " + statement(node.then) +
               (node.otherwise ? " ELSE " + statement(node.otherwise) : "");
    }
    std::string operator()(const Block& node) const {
        return "BEGIN " + statements(node.statements) + " END";
    }
    std::string operator()(const While& node) const {
        return "WHILE " + of(node.condition) + " " + statement(node.body);
    }
    std::string operator()(const Break&) const { return "BREAK"; }
    std::string operator()(const Continue&) const { return "CONTINUE"; }
    std::string operator()(const Return& node) const {
        return "RETURN" + optional(" ", node.value);
    }
    std::string operator()(const Print& node) const { return "PRINT " + of(node.value); }
    std::string operator()(const RaiseError& node) const {
        return "RAISERROR(" + of(node.message) + ", " + of(node.severity) + ", " + of(node.state) +
               (node.arguments.empty() ? "" : ", " + list(node.arguments)) + ")" +
               (node.options.empty()
                    ? ""
                    : " WITH " + joined(node.options, [](const std::string& w) { return w; }));
    }
    std::string operator()(const Throw& node) const {
        return !node.number
                   ? "THROW"
                   : "THROW " + of(node.number) + ", " + of(node.message) + ", " + of(node.state);
    }
    std::string operator()(const TryCatch& node) const {
        return "BEGIN TRY " + statements(node.tried) + " END TRY BEGIN CATCH " +
               statements(node.caught) + " END CATCH";
    }
    std::string operator()(const Transaction& node) const {
        static constexpr std::string_view kinds[] = {"BEGIN", "COMMIT", "ROLLBACK", "SAVE"};
        return std::string(kinds[int(node.kind)]) + " TRANSACTION" +
               (node.name.empty() ? "" : " " + name(node.name));
    }
    std::string operator()(const Use& node) const { return "USE " + name(node.database); }
};

} // namespace

std::string treeText(const Batch& batch) {
    return StatementText().statements(batch.statements);
}

} // namespace velcro::sql::tsql
