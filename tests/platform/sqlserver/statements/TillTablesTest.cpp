// The tables of a till's database: made from their texts, asked back from the catalogue, and brought
// up from an older shape. In the files of till/ a line "-- A, B" begins the texts of a table, or of
// several alike, whose name stands in them as <table>.
#include "support/EmbeddedDatabase.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace fs = std::filesystem;
using velcro::test::EmbeddedDatabase;

namespace {

constexpr const char* indexOptions =
    " WITH (  PAD_INDEX = OFF,  DROP_EXISTING = OFF,  STATISTICS_NORECOMPUTE = OFF,"
    "  SORT_IN_TEMPDB = OFF,  ONLINE = OFF,  ALLOW_ROW_LOCKS = ON,  ALLOW_PAGE_LOCKS = ON) "
    " ON [PRIMARY] ";

struct Texts
{
    std::vector<std::string> tables;
    std::string create;
    std::vector<std::string> alters;
    std::vector<std::string> indexes;
};

void replaceAll(std::string& text, std::string_view from, std::string_view to) {
    for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
}

std::string lower(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), ::tolower);
    return text;
}

/// The parts between commas that stand in no brackets of their own.
std::vector<std::string> parts(const std::string& list) {
    std::vector<std::string> all(1);
    int depth = 0;
    for (const char c : list) {
        depth += c == '(' ? 1 : c == ')' ? -1 : 0;
        if (c == ',' && depth == 0) {
            all.emplace_back();
        } else if (c != ' ' || !all.back().empty()) {
            all.back() += c;
        }
    }
    return all;
}

std::string between(const std::string& text, std::string_view left, std::string_view right,
                    std::size_t from = 0) {
    const auto begin = text.find(left, from) + left.size();
    return text.substr(begin, text.find(right, begin) - begin);
}

std::vector<Texts> readTexts(const std::string& name) {
    std::ifstream file(fs::path(STATEMENTS_FOLDER) / "till" / name);
    std::vector<Texts> all;
    for (std::string line; std::getline(file, line);) {
        replaceAll(line, " <options>", indexOptions);
        if (line.rfind("-- ", 0) == 0) {
            all.push_back({parts(line.substr(3)), {}, {}, {}});
        } else if (line.rfind("ALTER", 0) == 0) {
            all.back().alters.push_back(line);
        } else if (line.rfind("CREATE NONCLUSTERED", 0) == 0) {
            all.back().indexes.push_back(line);
        } else {
            all.back().create += line + " ";
        }
    }
    return all;
}

/// "[Name] type NOT NULL DEFAULT 0".
struct ColumnText
{
    explicit ColumnText(std::string text)
        : written(std::move(text))
        , name(between(written, "[", "]")) {
        const std::string rest = written.substr(std::min(written.size(), name.size() + 3));
        type = rest.substr(0, rest.find(' '));
        nullable = rest.find("NOT NULL") == std::string::npos;
        const auto at = rest.find("DEFAULT ");
        if (at != std::string::npos) {
            value = rest.substr(rest.find_first_not_of("( ", at + 8));
            value = value.substr(0, value.find_first_of(" )"));
        }
    }

    /// As the catalogue has it.
    std::string told() const {
        const bool isNumber = !value.empty() && value.front() != '\'';
        return name + "|" + type + (type == "sql_variant" ? "(0)" : "") + "|" +
               (nullable ? "YES" : "NO") + "|" +
               (value.empty() ? "NULL"
                : isNumber    ? "((" + value + "))"
                              : "(" + value + ")");
    }
    bool hasValue() const { return !value.empty(); }
    bool isIdentity() const { return written.find(" IDENTITY") != std::string::npos; }
    /// The cell of a row that was given none.
    std::string cell() const {
        const bool isText = hasValue() && value.front() == '\'';
        return isIdentity()  ? "1"
               : !hasValue() ? "NULL"
               : isText      ? between(value, "'", "'")
                             : value;
    }

    std::string written;
    std::string name;
    std::string type;
    bool nullable = true;
    std::string value; // of the default; blank without one
};

std::vector<ColumnText> columnsOf(const std::string& create) {
    const auto open = create.find('(');
    std::vector<ColumnText> columns;
    for (const auto& part : parts(create.substr(open + 1, create.rfind(')') - open - 1))) {
        columns.emplace_back(part);
    }
    return columns;
}

template <class Piece>
std::string joined(const std::vector<ColumnText>& columns, const char* separator, Piece piece) {
    std::string text;
    for (const auto& column : columns) {
        text += (text.empty() ? "" : separator) + piece(column);
    }
    return text;
}

std::string named(std::string text, const std::string& table) {
    replaceAll(text, "<table>", table);
    return text;
}

enum class Change { Add, Alter, Drop };

struct AlterText
{
    explicit AlterText(const std::string& text)
        : change(text.find(" ADD [") != std::string::npos           ? Change::Add
                 : text.find(" DROP COLUMN [") != std::string::npos ? Change::Drop
                                                                    : Change::Alter)
        , column(text.substr(text.find(" [", text.find("] ")) + 1)) {}

    Change change;
    ColumnText column;
};

/// The create text of a table that none of its ALTER texts has happened to.
std::string olderTable(const Texts& texts) {
    std::vector<ColumnText> columns = columnsOf(texts.create);
    std::vector<ColumnText> dropped;
    for (const auto& text : texts.alters) {
        const AlterText alter(text);
        const auto found = std::find_if(columns.begin(), columns.end(), [&](const auto& column) {
            return lower(column.name) == lower(alter.column.name);
        });
        if (alter.change == Change::Drop) {
            dropped.emplace_back("[" + alter.column.name + "] nvarchar(10)");
        } else if (found != columns.end() && alter.change == Change::Add) {
            columns.erase(found);
        } else if (found != columns.end()) {
            *found = ColumnText("[" + found->name + "] nvarchar(2)");
        }
    }
    columns.insert(columns.end(), dropped.begin(), dropped.end());
    return texts.create.substr(0, texts.create.find('(') + 1) +
           joined(columns, ", ", [](const auto& column) { return column.written; }) + " )";
}

class TillTablesTest : public testing::TestWithParam<const char*>
{
protected:
    std::string answer(const std::string& batch) { return database_.answer(batch); }

    /// The columns of a table, or one of them, as the catalogue has them.
    std::string told(const std::string& table, const std::string& column = "") {
        const std::string one = column.empty() ? "" : " AND COLUMN_NAME = '" + column + "'";
        return answer("SELECT COLUMN_NAME, DATA_TYPE + CASE WHEN CHARACTER_MAXIMUM_LENGTH = -1 THEN"
                      " '(max)' WHEN CHARACTER_MAXIMUM_LENGTH < 8001 THEN '(' +"
                      " CAST(CHARACTER_MAXIMUM_LENGTH AS varchar(5)) + ')' ELSE '' END,"
                      " IS_NULLABLE, COLUMN_DEFAULT FROM INFORMATION_SCHEMA.[COLUMNS]"
                      " WHERE TABLE_NAME = '" +
                      table + "'" + one + " ORDER BY ORDINAL_POSITION");
    }

    std::string keyOf(const std::string& index) {
        return answer("SELECT '[' + COL_NAME(C.object_id, C.column_id) + ']' FROM sys.indexes I"
                      " INNER JOIN sys.index_columns C ON C.object_id = I.object_id"
                      " AND C.index_id = I.index_id WHERE I.is_unique = 0 AND I.name = '" +
                      index + "' ORDER BY C.index_column_id");
    }

    void expectRow(const std::string& table, const std::vector<ColumnText>& columns) {
        const bool needsValues =
            std::any_of(columns.begin(), columns.end(), [](const auto& column) {
                return !column.nullable && !column.hasValue() && !column.isIdentity();
            });
        EXPECT_EQ(answer("INSERT INTO [" + table + "] DEFAULT VALUES"),
                  needsValues ? "error 515" : "(1)");
        EXPECT_EQ(answer("SELECT * FROM [" + table + "]"),
                  needsValues ? "" : joined(columns, "|", [](const auto& c) { return c.cell(); }));
    }

    void expectIndex(const std::string& text) {
        EXPECT_EQ(answer(text + " ;"), "(-1)") << text;
        std::string key = between(text, "  (", ")");
        replaceAll(key, ", ", ";");
        EXPECT_EQ(lower(keyOf(between(text, "INDEX [", "]"))), lower(key)) << text;
    }

    /// Right after an ALTER text has run.
    void expectChange(const std::string& table, const AlterText& alter, bool hasRow) {
        const ColumnText& column = alter.column;
        const std::string now = told(table, column.name);
        if (alter.change == Change::Drop) {
            EXPECT_EQ(now, "");
        } else if (alter.change == Change::Alter) {
            const std::string type = lower(column.name + "|" + column.type + "|YES|");
            EXPECT_EQ(lower(now).substr(0, type.size()), type);
        } else {
            EXPECT_EQ(now, column.told());
            EXPECT_EQ(answer("SELECT [" + column.name + "] FROM [" + table + "]"),
                      hasRow ? column.cell() : "");
        }
    }

    EmbeddedDatabase database_;
};

} // namespace

TEST_P(TillTablesTest, eachTableIsWhatItsTextSays) {
    for (const auto& texts : readTexts(GetParam())) {
        for (const auto& table : texts.tables) {
            SCOPED_TRACE(table);
            database_.connection().begin();
            const std::string create = named(texts.create, table);
            const auto columns = columnsOf(create);
            EXPECT_EQ(answer(create + " ;"), "(-1)");
            EXPECT_EQ(answer("ALTER TABLE [dbo].[" + table + "]  ADD CONSTRAINT [" + table +
                             "_idx00] PRIMARY KEY ([RecID]) ;"),
                      "(-1)");
            EXPECT_EQ(told(table),
                      joined(columns, ";", [](const auto& column) { return column.told(); }));
            expectRow(table, columns);
            for (const auto& index : texts.indexes) {
                if (lower(between(index, "ON [dbo].[", "]")) == lower(table)) {
                    expectIndex(index);
                }
            }
            EXPECT_EQ(answer("DROP TABLE [" + table + "] ;"), "(-1)");
            EXPECT_EQ(told(table), "");
            database_.connection().rollback();
        }
    }
}

TEST_P(TillTablesTest, anOlderTableIsBroughtUp) {
    for (const auto& texts : readTexts(GetParam())) {
        const std::string& table = texts.tables.front();
        SCOPED_TRACE(table);
        database_.connection().begin();
        EXPECT_EQ(answer(named(olderTable(texts), table)), "(-1)");
        const bool hasRow = answer("INSERT INTO [" + table + "] DEFAULT VALUES") == "(1)";
        for (const auto& text : texts.alters) {
            EXPECT_EQ(answer(named(text, table) + " ;"), "(-1)") << text;
            expectChange(table, AlterText(text), hasRow);
        }
        database_.connection().rollback();
    }
}

INSTANTIATE_TEST_SUITE_P(Areas, TillTablesTest,
                         testing::Values("system.sql", "stock.sql", "pos.sql", "documents.sql",
                                         "working.sql"));
