#include "platform/sqlserver/odbc/StatementText.h"

#include <gtest/gtest.h>

using namespace velcro::sql;
using namespace velcro::sql::odbc;

TEST(StatementTextTest, literalsOutsideAsciiAreMarkedNational) {
    const std::pair<const char*, const char*> cases[] = {
        {"INSERT t VALUES ('Grüße', 'plain')", "INSERT t VALUES (N'Grüße', 'plain')"},
        {"SELECT N'Ω', n'Ω'", "SELECT N'Ω', n'Ω'"},
        {"SELECT 'it''s ä'", "SELECT N'it''s ä'"},
        {"SELECT 'a''', 'ä', ''", "SELECT 'a''', N'ä', ''"},
        {"x LIKE'%ä%'", "x LIKE N'%ä%'"},
        {"SELECT 1 AS [ä 'b], \"ö 'x\"", "SELECT 1 AS [ä 'b], \"ö 'x\""},
        {"SELECT 1 AS [a]]'ä], 'ü'", "SELECT 1 AS [a]]'ä], N'ü'"},
        {"-- it's ä\nSELECT 'ä'", "-- it's ä\nSELECT N'ä'"},
        {"/* 'ä' /* 'ä' */ 'ä' */ 'ä'", "/* 'ä' /* 'ä' */ 'ä' */ N'ä'"},
        {"SELECT 5-'ä', 4/'ä'", "SELECT 5-N'ä', 4/N'ä'"},
        {"SELECT 'never closed ä", "SELECT N'never closed ä"},
    };
    for (const auto& [written, sent] : cases) {
        EXPECT_EQ(prepareText(written, {}, true).text, sent);
        EXPECT_EQ(prepareText(written, {}, false).text, written);
    }
}

TEST(StatementTextTest, namedParametersBecomeMarkersOutsideQuotesOnly) {
    const Parameter parameters[] = {
        {"CO", std::string("01")}, {"Note", {}}, {"N", std::int64_t{5}}};
    struct Case
    {
        const char* written;
        const char* sent;
        std::string markers;
    };
    const Case cases[] = {
        {"EXEC p :CO, :N", "EXEC p ?, ?", "CO N "},
        {"a=:co AND b=:n AND c=:CO", "a=? AND b=? AND c=?", "CO N CO "},
        {"SET x=:Note, y=:NoteB", "SET x=NULL, y=:NoteB", ""},
        {"':CO' [:CO] \":CO\" --:CO\n/*:CO*/ :CO", "':CO' [:CO] \":CO\" --:CO\n/*:CO*/ ?", "CO "},
        {"geo::CO a:CO '12:N'", "geo::CO a:CO '12:N'", ""},
        {":CO", "?", "CO "},
        {"x = :", "x = :", ""},
    };
    for (const auto& [written, sent, markers] : cases) {
        const auto prepared = prepareText(written, parameters, false);
        EXPECT_EQ(prepared.text, sent);
        std::string names;
        for (const auto* marker : prepared.markers) {
            names += marker->name + " ";
        }
        EXPECT_EQ(names, markers) << written;
    }
}
