#include "tsql/syntax/TreeText.h"

#include "tsql/syntax/AstStatement.h"
#include "tsql/syntax/Keywords.h"

#include <algorithm>

namespace velcro::sql::tsql {

namespace {

constexpr std::string_view binaryOps[] = {"+", "-", "*", "/", "%", "&", "|", "^"};
constexpr std::string_view compareOps[] = {"=", "<>", "<", "<=", ">", ">="};
constexpr std::string_view unaryOps[] = {"+", "-", "~"};
constexpr std::string_view setOps[] = {"UNION", "UNION ALL", "EXCEPT", "INTERSECT"};
constexpr std::string_view joins[] = {"INNER JOIN", "LEFT JOIN", "RIGHT JOIN", "FULL JOIN",
                                      "CROSS JOIN"};
constexpr std::string_view assignOps[] = {"=", "+=", "-=", "*=", "/=", "%=", "&=", "|=", "^="};
constexpr std::string_view frameBounds[] = {"UNBOUNDED PRECEDING", "PRECEDING", "CURRENT ROW",
                                            "FOLLOWING", "UNBOUNDED FOLLOWING"};
constexpr std::string_view matches[] = {"MATCHED", "NOT MATCHED", "NOT MATCHED BY SOURCE"};
constexpr std::string_view objectKinds[] = {"TABLE", "VIEW", "PROCEDURE"};
constexpr std::string_view modes[] = {"CREATE", "ALTER", "CREATE OR ALTER"};
constexpr std::string_view transactions[] = {"BEGIN", "COMMIT", "ROLLBACK", "SAVE"};

std::string doubled(std::string_view text, char mark) {
    std::string result;
    for (const char c : text) {
        result.append(c == mark ? 2 : 1, c);
    }
    return result;
}

std::string name(std::string_view text) {
    const std::size_t first = text.starts_with('#') ? 1 : 0;
    bool plain = text.size() > first && (text[first] < '0' || text[first] > '9');
    for (const char c : text.substr(first)) {
        plain = plain &&
                (c == '_' || (c >= '0' && c <= '9') || ((c | 0x20) >= 'a' && (c | 0x20) <= 'z'));
    }
    Token token;
    token.kind = TokenKind::Identifier;
    token.text = text;
    return plain && keywordOf(token) == Keyword::None ? std::string(text)
                                                      : "[" + doubled(text, ']') + "]";
}

const char* clustering(const std::optional<bool>& clustered) {
    return !clustered ? "" : *clustered ? " CLUSTERED" : " NONCLUSTERED";
}
const char* nullability(const std::optional<bool>& nullable) {
    return !nullable ? "" : *nullable ? " NULL" : " NOT NULL";
}

/// What is written in a way of its own: a name, several, a list with other words between, a constant
/// where no brackets may stand, the rows of VALUES.
struct N
{
    const std::string& text;
};
struct Names
{
    const std::vector<std::string>& list;
    std::string_view between = ", ";
};
template <class T>
struct Joined
{
    const std::vector<T>& list;
    std::string_view between;
};
struct Constant
{
    const ExprPtr& value;
};
struct Rows
{
    const std::vector<std::vector<ExprPtr>>& list;
};

/// What stands only where there is something to say.
template <class T>
struct Optional
{
    std::string_view before;
    const T& value;
    std::string_view after;
};
template <class T>
Optional<T> when(std::string_view before, const T& value, std::string_view after = {}) {
    return {before, value, after};
}
template <class T>
bool says(const T& value) {
    if constexpr (requires { value.empty(); }) {
        return !value.empty();
    } else if constexpr (requires { value.list; }) {
        return !value.list.empty();
    } else if constexpr (requires { value.text; }) {
        return !value.text.empty();
    } else if constexpr (requires { value.name; }) {
        return !value.name.empty();
    } else {
        return bool(value);
    }
}

/// Writes every kind of node, each by its parts.
class Writer
{
public:
    template <class... Parts>
    void put(const Parts&... parts) {
        (one(parts), ...);
    }
    std::string text;

private:
    void one(std::string_view words) { text += words; }
    void one(const N& node) { text += name(node.text); }
    void one(const Names& node) {
        for (const std::string& entry : node.list) {
            put(&entry == &node.list.front() ? "" : node.between, entry.empty() ? "" : name(entry));
        }
    }
    template <class T>
    void one(const Joined<T>& node) {
        for (const T& entry : node.list) {
            put(&entry == &node.list.front() ? "" : node.between, entry);
        }
    }
    template <class T>
    void one(const std::vector<T>& list) {
        one(Joined<T>{list, ", "});
    }
    template <class T>
    void one(const Optional<T>& node) {
        if (says(node.value)) {
            put(node.before, node.value, node.after);
        }
    }
    template <class T>
    void one(const std::unique_ptr<T>& node) {
        one(*node);
    }
    template <class T>
    void one(const std::optional<T>& node) {
        one(*node);
    }
    template <class... T>
    void one(const std::variant<T...>& node) {
        std::visit([this](const auto& entry) { one(entry); }, node);
    }
    void one(const Constant& node) {
        const auto* sign = std::get_if<Unary>(&node.value->node);
        sign ? put(unaryOps[int(sign->op)], sign->operand) : put(node.value);
    }
    void one(const Rows& node) {
        put("VALUES ");
        for (const auto& row : node.list) {
            put(&row == &node.list.front() ? "(" : ", (", row, ")");
        }
    }
    void one(const ObjectName& object) {
        std::vector<std::string> parts{object.name};
        for (const std::string* part : {&object.schema, &object.database, &object.server}) {
            parts.insert(parts.begin(), *part);
        }
        while (parts.size() > 1 && parts.front().empty()) {
            parts.erase(parts.begin());
        }
        // A table variable stands as it is; every other name may begin like one within brackets.
        const bool isVariable = parts.size() == 1 && object.name.starts_with('@') &&
                                name(object.name.substr(1)) == object.name.substr(1);
        isVariable ? put(object.name) : put(Names{parts, "."});
    }
    void one(const DataType& type) {
        put(when("", N{type.schema}, "."), N{type.name});
        if (type.max) {
            put("(max)");
        } else if (type.first >= 0) {
            put("(", std::to_string(type.first),
                type.second >= 0 ? ", " + std::to_string(type.second) : "", ")");
        }
    }

    // ---- expressions ----
    void one(const Expr& expr) { one(expr.node); }
    void one(const Literal& node) {
        static constexpr const char* marks[] = {"'", "N'", "", "", "", "$", ""};
        const bool quoted = node.kind <= LiteralKind::NationalString;
        put(marks[int(node.kind)], quoted ? doubled(node.text, '\'') : node.text,
            quoted ? "'" : "");
    }
    void one(const NullLiteral&) { put("NULL"); }
    void one(const DefaultValue&) { put("DEFAULT"); }
    void one(const Variable& node) { put(node.name); }
    void one(const GlobalVariable& node) { put(node.name); }
    void one(const NamedParameter& node) { put(":", node.name); }
    void one(const ColumnRef& node) { put(Names{node.parts, "."}); }
    void one(const Star& node) { put(when("", Names{node.qualifier, "."}, "."), "*"); }
    void one(const Unary& node) { put("(", unaryOps[int(node.op)], " ", node.operand, ")"); }
    void one(const Binary& node) {
        put("(", node.left, " ", binaryOps[int(node.op)], " ", node.right, ")");
    }
    void one(const Comparison& node) {
        put("(", node.left, " ", compareOps[int(node.op)], " ", node.right, ")");
    }
    void one(const Logical& node) {
        put("(", Joined<ExprPtr>{node.operands, node.isAnd ? " AND " : " OR "}, ")");
    }
    void one(const Not& node) { put("(NOT ", node.operand, ")"); }
    void one(const IsNull& node) {
        put("(", node.operand, node.negated ? " IS NOT NULL)" : " IS NULL)");
    }
    void one(const Between& node) {
        put("(", node.operand, no(node), " BETWEEN ", node.low, " AND ", node.high, ")");
    }
    void one(const InList& node) { put("(", node.operand, no(node), " IN (", node.values, "))"); }
    void one(const InQuery& node) { put("(", node.operand, no(node), " IN (", node.query, "))"); }
    void one(const Like& node) {
        put("(", node.operand, no(node), " LIKE ", node.pattern, when(" ESCAPE ", node.escape),
            ")");
    }
    void one(const Exists& node) { put("EXISTS (", node.query, ")"); }
    void one(const Quantified& node) {
        put("(", node.operand, " ", compareOps[int(node.op)], node.all ? " ALL (" : " ANY (",
            node.query, "))");
    }
    void one(const ScalarQuery& node) { put("(", node.query, ")"); }
    void one(const Case& node) {
        put("CASE", when(" ", node.operand), Joined<Case::Branch>{node.branches, ""},
            when(" ELSE ", node.otherwise), " END");
    }
    void one(const Case::Branch& node) { put(" WHEN ", node.when, " THEN ", node.then); }
    void one(const Cast& node) {
        put(node.isTry ? "TRY_" : "", "CAST(", node.operand, " AS ", node.type, ")");
    }
    void one(const Convert& node) {
        put(node.isTry ? "TRY_" : "", "CONVERT(", node.type, ", ", node.operand,
            when(", ", node.style), ")");
    }
    void one(const Collate& node) { put(node.operand, " COLLATE ", N{node.collation}); }
    void one(const FunctionCall& node) {
        const std::string capital = upper(node.name.name);
        const auto isOneOf = [&](std::initializer_list<std::string_view> words) {
            return node.name.schema.empty() &&
                   std::find(words.begin(), words.end(), capital) != words.end();
        };
        const bool niladic =
            isOneOf({"CURRENT_TIMESTAMP", "USER", "CURRENT_USER", "SESSION_USER", "SYSTEM_USER"});
        const bool reserved = niladic || isOneOf({"LEFT", "RIGHT", "COALESCE", "NULLIF"});
        reserved ? put(node.name.name) : put(node.name);
        if (!niladic) {
            put("(", node.distinct ? "DISTINCT " : "", node.arguments, ")");
        }
        put(when(" OVER (", node.over, ")"));
    }
    void one(const Window& node) {
        const bool both = !node.partitionBy.empty() && !node.orderBy.empty();
        put(when("PARTITION BY ", node.partitionBy), both ? " " : "",
            when("ORDER BY ", node.orderBy));
        if (node.hasFrame) {
            put(node.frameIsRows ? " ROWS" : " RANGE", " BETWEEN ", node.from, " AND ", node.to);
        }
    }
    void one(const FrameBound& node) {
        put(when("", node.count, " "), frameBounds[int(node.kind)]);
    }
    void one(const OrderItem& node) { put(node.expr, node.descending ? " DESC" : ""); }
    template <class Node>
    static const char* no(const Node& node) {
        return node.negated ? " NOT" : "";
    }

    // ---- queries ----
    void one(const SelectItem& node) {
        put(when("", node.variable, " = "), node.expr, when(" AS ", N{node.alias}));
    }
    void one(const TableHints& node) {
        for (const std::string& hint : node.names) {
            put(&hint == &node.names.front() ? " WITH (" : ", ",
                hint == "INDEX" ? "INDEX = 0" : hint); // which index is not kept
        }
        put(node.names.empty() ? "" : ")");
    }
    void one(const NamedTable& node) { put(node.name, when(" AS ", N{node.alias}), node.hints); }
    void one(const DerivedTable& node) {
        put("(", node.query, ")", when(" AS ", N{node.alias}),
            when(" (", Names{node.columns}, ")"));
    }
    void one(const ValuesTable& node) {
        put("(", Rows{node.rows}, ")", when(" AS ", N{node.alias}),
            when(" (", Names{node.columns}, ")"));
    }
    void one(const Join& node) {
        const bool nested = std::holds_alternative<Join>(node.right->node);
        put(node.left, " ", joins[int(node.kind)], nested ? " (" : " ", node.right,
            nested ? ")" : "", when(" ON ", node.on));
    }
    void one(const TableSource& node) { one(node.node); }
    void one(const SelectCore& node) {
        put("SELECT", node.distinct ? " DISTINCT" : "", when(" TOP (", node.top, ")"), " ",
            node.items, when(" INTO ", node.into), when(" FROM ", node.from),
            when(" WHERE ", node.where), when(" GROUP BY ", node.groupBy),
            when(" HAVING ", node.having));
    }
    void operation(const SetOperation& node) {
        put(node.left, " ", setOps[int(node.op)], " ", node.right);
    }
    void one(const SetOperation& node) {
        put("(");
        operation(node);
        put(")");
    }
    void one(const QueryBody& node) { one(node.node); }
    void one(const Query& node) {
        const auto* set = std::get_if<SetOperation>(&node.body->node);
        set ? operation(*set) : one(*node.body); // the outermost needs no brackets
        put(when(" ORDER BY ", node.orderBy), when(" OFFSET ", node.offset, " ROWS"),
            when(" FETCH NEXT ", node.fetch, " ROWS ONLY"));
    }
    void one(const CommonTable& node) {
        put(N{node.name}, when(" (", Names{node.columns}, ")"), " AS (", node.query, ")");
    }

    // ---- statements on rows ----
    void one(const Select& node) {
        put(when("WITH ", node.with, " "), node.query, when(" OPTION (", node.hints, ")"));
    }
    void one(const Insert& node) {
        put(when("WITH ", node.with, " "), "INSERT INTO ", node.table,
            when(" (", Names{node.columns}, ")"), when(" OUTPUT ", node.output), " ",
            when("", node.query), when("", node.execute), when("", node.executeText),
            when("", Rows{node.rows}));
        const bool filled = node.query || node.execute || node.executeText || says(node.rows);
        put(filled ? "" : "DEFAULT VALUES", when(" OPTION (", node.hints, ")"));
    }
    void one(const Assignment& node) {
        const bool both = !node.variable.empty() && !node.column.empty();
        put(node.variable, both ? " = " : "", Names{node.column, "."}, " ", assignOps[int(node.op)],
            " ", node.value);
    }
    void one(const Update& node) {
        put(when("WITH ", node.with, " "), "UPDATE", when(" TOP (", node.top, ")"), " ",
            node.target, node.targetHints, " SET ", node.set, when(" OUTPUT ", node.output));
        conditions(node);
    }
    void one(const Delete& node) {
        put(when("WITH ", node.with, " "), "DELETE", when(" TOP (", node.top, ")"), " FROM ",
            node.target, node.targetHints, when(" OUTPUT ", node.output));
        conditions(node);
    }
    template <class Node>
    void conditions(const Node& node) {
        put(when(" FROM ", node.from), when(" WHERE ", node.where),
            when(" OPTION (", node.hints, ")"));
    }
    void one(const MergeWhen& node) {
        put(" WHEN ", matches[int(node.match)], when(" AND ", node.condition), " THEN ");
        if (node.action == MergeWhen::Action::Update) {
            put("UPDATE SET ", node.set);
        } else if (node.action == MergeWhen::Action::Delete) {
            put("DELETE");
        } else {
            put("INSERT", when(" (", Names{node.columns}, ")"),
                node.values.empty() ? " DEFAULT VALUES" : "", when(" VALUES (", node.values, ")"));
        }
    }
    void one(const Merge& node) {
        put(when("WITH ", node.with, " "), "MERGE INTO ", node.target.name, node.target.hints,
            when(" AS ", N{node.target.alias}), " USING ", node.source, " ON ", node.on,
            Joined<MergeWhen>{node.when, ""}, when(" OPTION (", node.hints, ")"));
    }
    void one(const TruncateTable& node) { put("TRUNCATE TABLE ", node.table); }
    void one(const Argument& node) {
        put(when("", node.name, " = "), Constant{node.value}, node.output ? " OUTPUT" : "");
    }
    void one(const Execute& node) {
        put("EXEC ", when("", node.result, " = "), node.procedure, when(" ", node.arguments));
    }
    void one(const ExecuteText& node) { put("EXEC (", node.text, ")"); }

    // ---- definitions ----
    void one(const IndexColumn& node) { put(N{node.name}, node.descending ? " DESC" : ""); }
    void one(const IndexOption& node) { put(node.name, " = ", node.value); }
    void one(const Constraint& node) {
        put(when("CONSTRAINT ", N{node.name}, " "));
        if (node.kind == Constraint::Kind::Default) {
            put("DEFAULT ", node.expr.expr, when(" FOR ", N{node.forColumn}));
        } else {
            put(node.kind == Constraint::Kind::Unique ? "UNIQUE" : "PRIMARY KEY",
                clustering(node.clustered));
            keys(node);
        }
    }
    template <class Node>
    void keys(const Node& node) {
        put(when(" (", node.columns, ")"));
        if constexpr (requires { node.included; }) {
            put(when(" INCLUDE (", Names{node.included}, ")"));
        }
        put(when(" WITH (", node.options, ")"), when(" ON ", N{node.filegroup}));
    }
    void one(const ColumnDefinition& node) {
        put(N{node.name}, " ", node.type, when(" COLLATE ", N{node.collation}));
        if (node.identity) {
            put(" IDENTITY(", std::to_string(node.identity->seed), ", ",
                std::to_string(node.identity->increment), ")");
        }
        put(node.rowGuid ? " ROWGUIDCOL" : "", nullability(node.nullable),
            when(" ", Joined<Constraint>{node.constraints, " "}));
    }
    template <class Node>
    void elements(const Node& node) {
        const bool both = !node.columns.empty() && !node.constraints.empty();
        put(node.columns, both ? ", " : "", node.constraints);
    }
    void one(const CreateTable& node) {
        put("CREATE TABLE ", node.name, " (");
        elements(node);
        put(")", when(" ON ", N{node.filegroup}), when(" TEXTIMAGE_ON ", N{node.textFilegroup}));
    }
    void one(const AlterTableAdd& node) {
        put("ADD ");
        elements(node);
        put(node.withValues ? " WITH VALUES" : "");
    }
    void one(const AlterTableAlterColumn& node) {
        put("ALTER COLUMN ", N{node.column}, " ", node.type, when(" COLLATE ", N{node.collation}),
            nullability(node.nullable));
    }
    void one(const AlterTableDrop& node) { put("DROP ", node.items); }
    void one(const AlterTableDrop::Item& node) {
        put(node.isColumn ? "COLUMN " : "CONSTRAINT ", node.ifExists ? "IF EXISTS " : "",
            N{node.name});
    }
    void one(const AlterTableCheck& node) {
        put(node.check ? "CHECK" : "NOCHECK", " CONSTRAINT ", node.constraints.empty() ? "ALL" : "",
            Names{node.constraints});
    }
    void one(const AlterTable& node) { put("ALTER TABLE ", node.table, " ", node.action); }
    void one(const CreateIndex& node) {
        put("CREATE", node.unique ? " UNIQUE" : "", clustering(node.clustered), " INDEX ",
            N{node.name}, " ON ", node.table);
        keys(node);
    }
    void one(const DropIndex& node) {
        put("DROP INDEX ", node.ifExists ? "IF EXISTS " : "", node.items);
    }
    void one(const DropIndex::Item& node) { put(N{node.name}, " ON ", node.table); }
    void one(const DropObject& node) {
        put("DROP ", objectKinds[int(node.kind)], node.ifExists ? " IF EXISTS " : " ", node.names);
    }
    void one(const ProcedureParameter& node) {
        put(node.name, " ", node.type);
        if (node.defaultValue) {
            put(" = ", Constant{node.defaultValue});
        }
        put(node.output ? " OUTPUT" : "");
    }
    void one(const CreateProcedure& node) {
        put(modes[int(node.mode)], " PROCEDURE ", node.name, when(" ", node.parameters), " AS ",
            Joined<StatementPtr>{node.statements, " "});
    }
    void one(const CreateView& node) {
        put(modes[int(node.mode)], " VIEW ", node.name, when(" (", Names{node.columns}, ")"),
            " AS ", node.select);
    }

    // ---- control flow ----
    void one(const Statement& node) {
        one(node.node);
        put(text.ends_with(';') ? "" : ";");
    }
    void one(const Declare& node) { put("DECLARE ", node.items); }
    void one(const Declare::Item& node) {
        put(node.name, " ");
        if (node.table) {
            put("TABLE (");
            elements(*node.table);
            put(")");
        } else {
            put(node.type, when(" = ", node.value));
        }
    }
    void one(const SetVariable& node) {
        put("SET ", node.name, " ", assignOps[int(node.op)], " ", node.value);
    }
    void one(const SetOption& node) {
        const bool words = !node.value.empty() &&
                           node.value.find_first_not_of(
                               "ABCDEFGHIJKLMNOPQRSTUVWXYZ_ @-0123456789") == std::string::npos;
        put("SET ", node.names, when(" ", node.table), " ",
            words ? node.value : "'" + doubled(node.value, '\'') + "'");
    }
    void one(const If& node) {
        put("IF ", node.condition, " ", node.then, when(" ELSE ", node.otherwise));
    }
    void one(const Block& node) {
        put("BEGIN ", Joined<StatementPtr>{node.statements, " "}, " END");
    }
    void one(const While& node) { put("WHILE ", node.condition, " ", node.body); }
    void one(const Break&) { put("BREAK"); }
    void one(const Continue&) { put("CONTINUE"); }
    void one(const Return& node) { put("RETURN", when(" ", node.value)); }
    void one(const Print& node) { put("PRINT ", node.value); }
    void one(const RaiseError& node) {
        put("RAISERROR(", node.message, ", ", node.severity, ", ", node.state,
            when(", ", node.arguments), ")", when(" WITH ", node.options));
    }
    void one(const Throw& node) {
        put("THROW", when(" ", node.number), when(", ", node.message), when(", ", node.state));
    }
    void one(const TryCatch& node) {
        put("BEGIN TRY ", Joined<StatementPtr>{node.tried, " "}, " END TRY BEGIN CATCH ",
            Joined<StatementPtr>{node.caught, " "}, " END CATCH");
    }
    void one(const Transaction& node) {
        put(transactions[int(node.kind)], " TRANSACTION", when(" ", N{node.name}));
    }
    void one(const Use& node) { put("USE ", N{node.database}); }
};

} // namespace

std::string treeText(const Batch& batch) {
    Writer writer;
    writer.put(Joined<StatementPtr>{batch.statements, " "});
    return writer.text;
}

} // namespace velcro::sql::tsql
