#include "tsql/syntax/Parser.h"

#include "support/Rows.h"
#include "tsql/syntax/TreeText.h"
#include "tsql/values/Errors.h"

#include <gtest/gtest.h>

using namespace velcro::sql::tsql;

namespace {

/// The tree's text, which gives the same tree again; or "error <number> <line>:<column> <words>".
std::string reading(const std::string& text) {
    try {
        const std::string tree = treeText(parse(text));
        EXPECT_EQ(treeText(parse(tree)), tree);
        return tree;
    } catch (const Fault& fault) {
        const velcro::sql::SqlMessage& message = fault.message();
        return "error " + std::to_string(message.number) + " " + std::to_string(message.line) +
               ":" + std::to_string(message.column) + " " + message.text;
    }
}

TEST(ParserTest, ReadsAndRefusesAsTheServerDoes) {
    for (const auto& section : velcro::test::sectionsOf(TSQL_ROWS "/syntax/readings.rows")) {
        for (const auto& [text, answer] : section.questions) {
            EXPECT_EQ(reading(text), answer) << text;
        }
    }
}

std::string repeated(std::string_view text, int times) {
    std::string result;
    for (int i = 0; i < times; ++i) {
        result += text;
    }
    return result;
}

TEST(ParserTest, RefusesWhatIsNestedTooDeeplyBeforeTheStackEnds) {
    const int many = 5000;
    const std::string texts[] = {"SELECT " + repeated("(", many),
                                 "SELECT " + repeated("- ", many) + "1",
                                 "SELECT 1 WHERE " + repeated("NOT ", many) + "1 = 1",
                                 "SELECT 1" + repeated(" + 1", many),
                                 "SELECT a" + repeated(" COLLATE b", many),
                                 "SELECT " + repeated("f(", many),
                                 "SELECT " + repeated("CASE WHEN ", many),
                                 "SELECT " + repeated("(SELECT ", many),
                                 "SELECT 1" + repeated(" UNION SELECT 1", many),
                                 "SELECT 1 FROM " + repeated("(", many),
                                 "SELECT 1 FROM t" + repeated(" JOIN t", many),
                                 "SELECT 1 FROM t" + repeated(" CROSS JOIN t", many),
                                 repeated("IF 1 = 1 ", many),
                                 "IF 1 = 1 SELECT 1" + repeated(" ELSE IF 1 = 1 SELECT 1", many),
                                 repeated("BEGIN ", many),
                                 repeated("WHILE 1 = 1 ", many),
                                 repeated("(", many) + "SELECT 1"};
    for (const std::string& text : texts) {
        try {
            parse(text);
            ADD_FAILURE() << "taken: " << text.substr(0, 60);
        } catch (const Fault& fault) {
            EXPECT_EQ(fault.number(), 191) << text.substr(0, 60);
        }
    }
}

TEST(ParserTest, TakesWideStatements) {
    const int many = 5000;
    const std::string texts[] = {
        "SELECT a WHERE 1 = 1" + repeated(" OR a = 2", many),
        "SELECT a WHERE a IN (0" + repeated(", 1", many) + ")",
        "INSERT INTO t VALUES (0)" + repeated(", (1)", many),
        "SELECT 1" + repeated("; SELECT 1", many),
        "SELECT " + repeated("(", 50) + "1" + repeated(")", 50) + repeated(" + 1", 300),
    };
    for (const std::string& text : texts) {
        EXPECT_NO_THROW(parse(text)) << text.substr(0, 60);
    }
}

TEST(ParserTest, KeepsWhatDefinitionsAreMadeFrom) {
    const std::string_view text = " CREATE PROCEDURE p @a int = 1 AS\r\n SELECT  @a -- end\r\n";
    const Batch batch = parse(text);
    EXPECT_FALSE(batch.reusable);
    const auto& procedure = std::get<CreateProcedure>(batch.statements.at(0)->node);
    const auto part = [text](SourceRange range) {
        return text.substr(range.begin, range.end - range.begin);
    };
    EXPECT_EQ(part(procedure.source), "CREATE PROCEDURE p @a int = 1 AS\r\n SELECT  @a");
    EXPECT_EQ(part(procedure.body), "SELECT  @a");
    const std::string_view table = "CREATE TABLE t (a int DEFAULT ( 1 ) NOT NULL)";
    const Batch definition = parse(table);
    const auto& column = std::get<CreateTable>(definition.statements.at(0)->node).columns.at(0);
    const SourceRange range = column.constraints.at(0).expr.source;
    EXPECT_EQ(table.substr(range.begin, range.end - range.begin), "( 1 )");
}

} // namespace
