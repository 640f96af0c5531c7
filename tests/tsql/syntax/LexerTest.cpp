#include "tsql/syntax/Lexer.h"

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
    for (Token token = lexer.next(); token.kind != TokenKind::End; token = lexer.next()) {
        result += (result.empty() ? "" : " ") + std::string(kinds[static_cast<int>(token.kind)]) +
                  ":" + tokenValue(token);
    }
    return result;
}

struct Cut
{
    std::string_view text;
    std::string_view tokens;
};

TEST(LexerTest, CutsEveryKindOfToken) {
    const Cut cuts[] = {
        {"SELECT t.[a ]] b], \"q\"\"r\"", "word:SELECT word:t op:. name:a ] b op:, name:q\"r"},
        {"'O''Neil' N'\xC4\x80' n'x' ''", "text:O'Neil ntext:\xC4\x80 ntext:x text:"},
        {"N 'x'", "word:N text:x"},
        {"12 1.5 .5 7. 1e3 1E-3 2.5e+10 1else", "int:12 dec:1.5 dec:.5 dec:7. float:1e3 "
                                                "float:1E-3 float:2.5e+10 int:1 word:else"},
        {"9223372036854775807 9223372036854775808 0009223372036854775807",
         "int:9223372036854775807 dec:9223372036854775808 int:0009223372036854775807"},
        {"0x1fG 0x $12.50 $", "bin:0x1f word:G bin:0x money:12.50 word:$"},
        {"@CO=@@SPID", "var:@CO op:= global:@@SPID"},
        {":CO, :Text::x", "param:CO op:, param:Text op::: word:x"},
        {"a<>b!=c<=d>=e!<f!>g", "word:a op:<> word:b op:!= word:c op:<= word:d op:>= word:e op:!< "
                                "word:f op:!> word:g"},
        {"+=-=*=/=%=&=|=^=", "op:+= op:-= op:*= op:/= op:%= op:&= op:|= op:^="},
        {"a -- 'open\nb /* x /* nested */ 'y */ c", "word:a word:b word:c"},
        {"#t ##g _x a$b \xC3\xA9t\xC3\xA9", "word:#t word:##g word:_x word:a$b "
                                            "word:\xC3\xA9t\xC3\xA9"},
        {"1-1 a-b", "int:1 op:- int:1 word:a op:- word:b"},
        {"", ""},
    };
    for (const Cut& cut : cuts) {
        EXPECT_EQ(tokens(cut.text), cut.tokens) << cut.text;
    }
}

TEST(LexerTest, CountsLinesWhateverEndsThem) {
    Lexer lexer("a\r\nb\rc\n  'x\ny' d /* \n */ e", 10);
    std::string places;
    for (Token token = lexer.next(); token.kind != TokenKind::End; token = lexer.next()) {
        places += std::to_string(token.at.line) + ":" + std::to_string(token.at.column) + " ";
    }
    EXPECT_EQ(places, "10:1 11:1 12:1 13:3 14:4 15:5 ");
}

struct Refusal
{
    std::string_view text;
    int number;
    int line;
    int column;
    std::string_view wording;
};

TEST(LexerTest, RefusesWhatIsNotClosedAndWhatIsNoTsql) {
    const Refusal refusals[] = {
        {"SELECT\n 'abc", 105, 2, 2, "Unclosed quotation mark after the character string 'abc'."},
        {"SELECT N'it''s", 105, 1, 8,
         "Unclosed quotation mark after the character string 'it''s'."},
        {"a [b", 105, 1, 3, "Unclosed quotation mark after the character string 'b'."},
        {"a \"b", 105, 1, 3, "Unclosed quotation mark after the character string 'b'."},
        {"a\n/* /* */", 113, 2, 1, "Missing end comment mark '*/'."},
        {"a ? b", 102, 1, 3, "Incorrect syntax near '?'."},
        {"a ! b", 102, 1, 3, "Incorrect syntax near '!'."},
        {"@", 102, 1, 1, "Incorrect syntax near '@'."},
    };
    for (const Refusal& refusal : refusals) {
        try {
            tokens(refusal.text);
            FAIL() << "taken: " << refusal.text;
        } catch (const Fault& fault) {
            EXPECT_EQ(fault.number(), refusal.number) << refusal.text;
            EXPECT_EQ(fault.message().line, refusal.line) << refusal.text;
            EXPECT_EQ(fault.message().column, refusal.column) << refusal.text;
            EXPECT_EQ(fault.what(), refusal.wording);
            EXPECT_EQ(fault.message().level, 15);
        }
    }
}

} // namespace
