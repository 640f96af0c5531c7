#include "tsql/syntax/Lexer.h"

#include "support/Rows.h"
#include "tsql/values/Errors.h"

#include <gtest/gtest.h>

using namespace velcro::sql::tsql;

namespace {

/// Kinds and values of all tokens: "word:SELECT op:* ...".
std::string tokens(std::string_view text) {
    static constexpr std::string_view kinds[] = {"",    "word",   "name",  "text",  "ntext",
                                                 "int", "dec",    "float", "money", "bin",
                                                 "var", "global", "param", "op"};
    std::string result;
    Lexer lexer(text);
    try {
        for (Token token = lexer.next(); token.kind != TokenKind::End; token = lexer.next()) {
            result += (result.empty() ? "" : " ") +
                      std::string(kinds[static_cast<int>(token.kind)]) + ":" + tokenValue(token);
        }
    } catch (const Fault& fault) {
        EXPECT_EQ(fault.message().level, 15);
        result = "error " + std::to_string(fault.number()) + " " +
                 std::to_string(fault.message().line) + ":" +
                 std::to_string(fault.message().column) + " " + fault.what();
    }
    return result;
}

TEST(LexerTest, CutsEveryKindOfTokenAndRefusesTheRest) {
    for (const auto& section : velcro::test::sectionsOf(TSQL_ROWS "/syntax/tokens.rows")) {
        for (const auto& [text, answer] : section.questions) {
            EXPECT_EQ(tokens(text), answer) << text;
        }
    }
    EXPECT_EQ(tokens(""), "");
}

TEST(LexerTest, CountsLinesWhateverEndsThem) {
    Lexer lexer("a\r\nb\rc\n  'x\ny' d /* \n */ e", 10);
    std::string places;
    for (Token token = lexer.next(); token.kind != TokenKind::End; token = lexer.next()) {
        places += std::to_string(token.at.line) + ":" + std::to_string(token.at.column) + " ";
    }
    EXPECT_EQ(places, "10:1 11:1 12:1 13:3 14:4 15:5 ");
}

} // namespace
