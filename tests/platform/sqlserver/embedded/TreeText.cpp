#include "platform/sqlserver/embedded/TreeText.h"

#include "platform/sqlserver/embedded/Keywords.h"

namespace velcro::sql::tsql {

namespace {

constexpr std::string_view binaryOps[] = {"+", "-", "*", "/", "%", "&", "|", "^"};
constexpr std::string_view compareOps[] = {"=", "<>", "<", "<=", ">", ">="};
constexpr std::string_view unaryOps[] = {"+", "-", "~"};
constexpr std::string_view setOps[] = {"UNION", "UNION ALL", "EXCEPT", "INTERSECT"};
constexpr std::string_view joins[] = {"INNER JOIN", "LEFT JOIN",   "RIGHT JOIN", "FULL JOIN",
                                      "CROSS JOIN", "CROSS APPLY", "OUTER APPLY"};
constexpr std::string_view assignOps[] = {"=", "+=", "-=", "*=", "/=", "%=", "&=", "|=", "^="};

std::string doubled(std::string_view text, char mark) {
    std::string result;
    for (const char c : text) {
        result.append(c == mark ? 2 : 1, c);
    }
    return result;
}

std::string name(std::string_view text) {
    bool plain = !text.empty() && (text.front() < '0' || text.front() > '9');
    for (const char c : text) {
        plain = plain &&
                (c == '_' || (c >= '0' && c <= '9') || ((c | 0x20) >= 'a' && (c | 0x20) <= 'z'));
    }
    Token token;
    token.kind = TokenKind::Identifier;
    token.text = text;
    const bool special = !text.empty() && (text.front() == '#' || text.front() == '@');
    return special || (plain && keywordOf(token) == Keyword::None) ? std::string(text)
                                                                   : "[" + doubled(text, ']') + "]";
}

template <class List, class Function>
std::string joined(const List& list, Function&& text, std::string_view between = ", ") {
    std::string result;
    for (const auto& entry : list) {
        result += result.empty() ? "" : between;
        result += text(entry);
    }
    return result;
}

std::string names(const std::vector<std::string>& list, std::string_view between = ", ") {
    return joined(
        list, [](const std::string& entry) { return name(entry); }, between);
}
std::string optionalNames(const std::vector<std::string>& list) {
    return list.empty() ? "" : " (" + names(list) + ")";
}
std::string dotted(const std::vector<std::string>& parts) {
    std::string result;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        result += (i > 0 ? "." : "") + (parts[i].empty() ? "" : name(parts[i]));
    }
    return result;
}
std::string object(const ObjectName& object) {
    std::vector<std::string> parts{object.name};
    for (const std::string* part : {&object.schema, &object.database, &object.server}) {
        parts.insert(parts.begin(), *part);
    }
    while (parts.size() > 1 && parts.front().empty()) {
        parts.erase(parts.begin());
    }
    return dotted(parts);
}
std::string type(const DataType& type) {
    std::string result = (type.schema.empty() ? "" : name(type.schema) + ".") + name(type.name);
    if (type.max) {
        return result + "(max)";
    }
    if (type.first >= 0) {
        result += "(" + std::to_string(type.first);
        result += type.second >= 0 ? ", " + std::to_string(type.second) + ")" : ")";
    }
    return result;
}

/// Walks the tree; one function a node.
struct Text
{
    std::string of(const ExprPtr& expr) const { return std::visit(*this, expr->node); }
    std::string list(const std::vector<ExprPtr>& exprs) const {
        return joined(exprs, [this](const ExprPtr& expr) { return of(expr); });
    }
    std::string optional(std::string_view before, const ExprPtr& expr) const {
        return expr ? std::string(before) + of(expr) : "";
    }

    std::string operator()(const Literal& node) const {
        switch (node.kind) {
        case LiteralKind::String:
            return "'" + doubled(node.text, '\'') + "'";
        case LiteralKind::NationalString:
            return "N'" + doubled(node.text, '\'') + "'";
        case LiteralKind::Money:
            return "$" + node.text;
        default:
            return node.text;
        }
    }
    std::string operator()(const NullLiteral&) const { return "NULL"; }
    std::string operator()(const DefaultValue&) const { return "DEFAULT"; }
    std::string operator()(const Variable& node) const { return node.name; }
    std::string operator()(const GlobalVariable& node) const { return node.name; }
    std::string operator()(const NamedParameter& node) const { return ":" + node.name; }
    std::string operator()(const ColumnRef& node) const { return dotted(node.parts); }
    std::string operator()(const Star& node) const {
        return node.qualifier.empty() ? "*" : dotted(node.qualifier) + ".*";
    }
    std::string operator()(const Unary& node) const {
        return "(" + std::string(unaryOps[int(node.op)]) + " " + of(node.operand) + ")";
    }
    std::string operator()(const Binary& node) const {
        return "(" + of(node.left) + " " + std::string(binaryOps[int(node.op)]) + " " +
               of(node.right) + ")";
    }
    std::string operator()(const Comparison& node) const {
        return "(" + of(node.left) + " " + std::string(compareOps[int(node.op)]) + " " +
               of(node.right) + ")";
    }
    std::string operator()(const Logical& node) const {
        return "(" +
               joined(
                   node.operands, [this](const ExprPtr& expr) { return of(expr); },
                   node.isAnd ? " AND " : " OR ") +
               ")";
    }
    std::string operator()(const Not& node) const { return "(NOT " + of(node.operand) + ")"; }
    std::string operator()(const IsNull& node) const {
        return "(" + of(node.operand) + (node.negated ? " IS NOT NULL)" : " IS NULL)");
    }
    std::string operator()(const Between& node) const {
        return "(" + of(node.operand) + no(node.negated) + " BETWEEN " + of(node.low) + " AND " +
               of(node.high) + ")";
    }
    std::string operator()(const InList& node) const {
        return "(" + of(node.operand) + no(node.negated) + " IN (" + list(node.values) + "))";
    }
    std::string operator()(const InQuery& node) const {
        return "(" + of(node.operand) + no(node.negated) + " IN (" + query(*node.query) + "))";
    }
    std::string operator()(const Like& node) const {
        return "(" + of(node.operand) + no(node.negated) + " LIKE " + of(node.pattern) +
               optional(" ESCAPE ", node.escape) + ")";
    }
    std::string operator()(const Exists& node) const {
        return "EXISTS (" + query(*node.query) + ")";
    }
    std::string operator()(const Quantified& node) const {
        return "(" + of(node.operand) + " " + std::string(compareOps[int(node.op)]) +
               (node.all ? " ALL (" : " ANY (") + query(*node.query) + "))";
    }
    std::string operator()(const ScalarQuery& node) const { return "(" + query(*node.query) + ")"; }
    std::string operator()(const Case& node) const {
        std::string result = "CASE" + optional(" ", node.operand);
        for (const Case::Branch& branch : node.branches) {
            result += " WHEN " + of(branch.when) + " THEN " + of(branch.then);
        }
        return result + optional(" ELSE ", node.otherwise) + " END";
    }
    std::string operator()(const Cast& node) const {
        return std::string(node.isTry ? "TRY_" : "") + "CAST(" + of(node.operand) + " AS " +
               type(node.type) + ")";
    }
    std::string operator()(const Convert& node) const {
        return std::string(node.isTry ? "TRY_" : "") + "CONVERT(" + type(node.type) + ", " +
               of(node.operand) + optional(", ", node.style) + ")";
    }
    std::string operator()(const Collate& node) const {
        return of(node.operand) + " COLLATE " + name(node.collation);
    }
    std::string operator()(const FunctionCall& node) const {
        // A reserved word in brackets would be another function.
        const bool plain =
            node.name.schema.empty() && node.name.name.find(' ') == std::string::npos;
        const std::string called = plain ? node.name.name : object(node.name);
        const std::string capital = upper(called);
        const bool niladic = capital == "CURRENT_TIMESTAMP" || capital == "USER" ||
                             capital == "CURRENT_USER" || capital == "SESSION_USER" ||
                             capital == "SYSTEM_USER";
        return called +
               (niladic ? ""
                        : "(" + std::string(node.distinct ? "DISTINCT " : "") +
                              list(node.arguments) + ")") +
               (node.over ? " OVER (" + window(*node.over) + ")" : "");
    }
    std::string operator()(const NextValueFor& node) const {
        return "NEXT VALUE FOR " + object(node.sequence);
    }

    static std::string no(bool negated) { return negated ? " NOT" : ""; }
    std::string order(const std::vector<OrderItem>& items) const {
        return "ORDER BY " + joined(items, [this](const OrderItem& item) {
                   return of(item.expr) + (item.descending ? " DESC" : "");
               });
    }
    std::string bound(const FrameBound& bound) const {
        static constexpr std::string_view kinds[] = {
            "UNBOUNDED PRECEDING", "PRECEDING", "CURRENT ROW", "FOLLOWING", "UNBOUNDED FOLLOWING"};
        return (bound.count ? of(bound.count) + " " : "") + std::string(kinds[int(bound.kind)]);
    }
    std::string window(const Window& window) const {
        std::string result;
        if (!window.partitionBy.empty()) {
            result = "PARTITION BY " + list(window.partitionBy);
        }
        if (!window.orderBy.empty()) {
            result += (result.empty() ? "" : " ") + order(window.orderBy);
        }
        if (window.hasFrame) {
            result += std::string(window.frameIsRows ? " ROWS" : " RANGE") + " BETWEEN " +
                      bound(window.from) + " AND " + bound(window.to);
        }
        return result;
    }

    // ---- queries ----
    std::string item(const SelectItem& item) const {
        return (item.variable.empty() ? "" : item.variable + " = ") + of(item.expr) +
               (item.alias.empty() ? "" : " AS " + name(item.alias));
    }
    std::string items(const std::vector<SelectItem>& list) const {
        return joined(list, [this](const SelectItem& entry) { return item(entry); });
    }
    static std::string hints(const TableHints& hints) {
        return hints.names.empty()
                   ? ""
                   : " WITH (" + joined(hints.names, [](const std::string& hint) { return hint; }) +
                         ")";
    }
    static std::string alias(const std::string& text) {
        return text.empty() ? "" : " AS " + name(text);
    }
    std::string rows(const std::vector<std::vector<ExprPtr>>& rows) const {
        return "VALUES " + joined(rows, [this](const auto& row) { return "(" + list(row) + ")"; });
    }
    std::string operator()(const NamedTable& node) const {
        return object(node.name) + alias(node.alias) + hints(node.hints);
    }
    std::string operator()(const DerivedTable& node) const {
        return "(" + query(*node.query) + ")" + alias(node.alias) + optionalNames(node.columns);
    }
    std::string operator()(const ValuesTable& node) const {
        return "(" + rows(node.rows) + ")" + alias(node.alias) + optionalNames(node.columns);
    }
    std::string operator()(const FunctionTable& node) const {
        return object(node.name) + "(" + list(node.arguments) + ")" + alias(node.alias) +
               optionalNames(node.columns);
    }
    std::string operator()(const Join& node) const {
        return source(node.left) + " " + std::string(joins[int(node.kind)]) + " " +
               bracketedJoin(node.right) + optional(" ON ", node.on);
    }
    std::string source(const TableSourcePtr& source) const {
        return std::visit(*this, source->node);
    }
    std::string bracketedJoin(const TableSourcePtr& right) const {
        const bool nested = std::holds_alternative<Join>(right->node);
        return nested ? "(" + source(right) + ")" : source(right);
    }
    std::string from(const std::vector<TableSourcePtr>& sources) const {
        return sources.empty() ? ""
                               : " FROM " + joined(sources, [this](const TableSourcePtr& entry) {
                                     return source(entry);
                                 });
    }
    std::string top(const std::optional<Top>& top) const {
        return !top ? ""
                    : " TOP (" + of(top->count) + ")" + (top->percent ? " PERCENT" : "") +
                          (top->withTies ? " WITH TIES" : "");
    }
    std::string operator()(const SelectCore& node) const {
        return "SELECT" + std::string(node.distinct ? " DISTINCT" : "") + top(node.top) + " " +
               items(node.items) + (node.into ? " INTO " + object(*node.into) : "") +
               from(node.from) + optional(" WHERE ", node.where) +
               (node.groupBy.empty() ? "" : " GROUP BY " + list(node.groupBy)) +
               optional(" HAVING ", node.having);
    }
    std::string operator()(const SetOperation& node) const {
        return "(" + body(*node.left) + " " + std::string(setOps[int(node.op)]) + " " +
               body(*node.right) + ")";
    }
    std::string body(const QueryBody& body) const { return std::visit(*this, body.node); }
    std::string query(const Query& query) const {
        const auto* set = std::get_if<SetOperation>(&query.body->node);
        std::string result = body(*query.body);
        if (set) {
            result = result.substr(1, result.size() - 2); // the outermost needs no brackets
        }
        result += query.orderBy.empty() ? "" : " " + order(query.orderBy);
        result += query.offset ? " OFFSET " + of(query.offset) + " ROWS" : "";
        return result + (query.fetch ? " FETCH NEXT " + of(query.fetch) + " ROWS ONLY" : "");
    }
    std::string with(const std::vector<CommonTable>& tables) const {
        return tables.empty() ? "" : "WITH " + joined(tables, [this](const CommonTable& table) {
                                         return name(table.name) + optionalNames(table.columns) +
                                                " AS (" + query(*table.query) + ")";
                                     }) + " ";
    }
    static std::string option(const QueryHints& hints) {
        return hints.empty() ? "" : " OPTION (" + joined(hints, [](const std::string& hint) {
                                        return hint;
                                    }) + ")";
    }

    // ---- statements on rows ----
    std::string output(const std::optional<OutputClause>& clause) const {
        return !clause ? ""
                       : " OUTPUT " + items(clause->items) +
                             (clause->into ? " INTO " + object(*clause->into) : "") +
                             optionalNames(clause->columns);
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
        std::string result = with(node.with) + "INSERT" + top(node.top) + " INTO " +
                             object(node.table) + optionalNames(node.columns) +
                             output(node.output) + " ";
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
        return result + output(node.output) + option(node.hints);
    }
    std::string operator()(const TruncateTable& node) const {
        return "TRUNCATE TABLE " + object(node.table);
    }
    std::string argument(const Argument& argument) const {
        return (argument.name.empty() ? "" : argument.name + " = ") + of(argument.value) +
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
        case Constraint::Kind::Check:
            return result + "CHECK (" + of(node.expr.expr) + ")";
        case Constraint::Kind::Default:
            return result + "DEFAULT " + of(node.expr.expr) +
                   (node.forColumn.empty() ? "" : " FOR " + name(node.forColumn));
        default:
            result += node.columns.empty() ? "" : "FOREIGN KEY" + columns(node.columns) + " ";
            return result + "REFERENCES " + object(node.references) +
                   optionalNames(node.referencedColumns) +
                   (node.onDelete.empty() ? "" : " ON DELETE " + node.onDelete) +
                   (node.onUpdate.empty() ? "" : " ON UPDATE " + node.onUpdate);
        }
    }
    static std::string nullable(const std::optional<bool>& nullable) {
        return !nullable ? "" : *nullable ? " NULL" : " NOT NULL";
    }
    std::string column(const ColumnDefinition& node) const {
        std::string result = name(node.name) + " ";
        result += node.computed.expr
                      ? "AS " + of(node.computed.expr) + (node.persisted ? " PERSISTED" : "")
                      : type(node.type);
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
               optional(" WHERE ", node.where.expr) + options(node.options) +
               on("ON", node.filegroup);
    }
    std::string operator()(const DropIndex& node) const {
        return std::string("DROP INDEX ") + (node.ifExists ? "IF EXISTS " : "") +
               joined(node.items, [](const DropIndex::Item& item) {
                   return name(item.name) + " ON " + object(item.table);
               });
    }
    std::string operator()(const DropObject& node) const {
        static constexpr std::string_view kinds[] = {"TABLE",   "VIEW",     "PROCEDURE", "FUNCTION",
                                                     "TRIGGER", "SEQUENCE", "DATABASE"};
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
                                 optional(" = ", entry.defaultValue) +
                                 (entry.output ? " OUTPUT" : "");
                      }) +
               " AS " + statements(node.statements);
    }
    std::string operator()(const CreateView& node) const {
        return mode(node.mode) + " VIEW " + object(node.name) + optionalNames(node.columns) +
               " AS " + (*this)(node.select);
    }
    static std::string number(std::string_view before, const std::optional<std::int64_t>& number) {
        return number ? std::string(before) + std::to_string(*number) : "";
    }
    std::string operator()(const CreateSequence& node) const {
        return "CREATE SEQUENCE " + object(node.name) +
               (node.type ? " AS " + type(*node.type) : "") + number(" START WITH ", node.start) +
               number(" INCREMENT BY ", node.increment) + number(" MINVALUE ", node.minimum) +
               number(" MAXVALUE ", node.maximum) + (node.cycle ? " CYCLE" : "");
    }
    std::string operator()(const CreateDatabase& node) const {
        return "CREATE DATABASE " + name(node.name);
    }
    std::string operator()(const CreateSchema& node) const {
        return "CREATE SCHEMA " + name(node.name);
    }

    // ---- control flow ----
    std::string statements(const std::vector<StatementPtr>& list) const {
        return joined(
            list, [this](const StatementPtr& entry) { return statement(entry); }, " ");
    }
    std::string statement(const StatementPtr& node) const {
        return std::visit(*this, node->node) + ";";
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
    std::string operator()(const SetOption& node) const {
        return "SET " + joined(node.names, [](const std::string& entry) { return entry; }) +
               (node.table.name.empty() ? "" : " " + object(node.table)) + " " + node.value;
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
               (node.options.empty() ? "" : " WITH " + names(node.options));
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
    return Text().statements(batch.statements);
}

} // namespace velcro::sql::tsql
