#include "tsql/translate/Translation.h"

#include <gtest/gtest.h>

using namespace velcro::sql::tsql;

TEST(TranslationTest, bindsFollowTheirPlaceHolders) {
    const auto plain = [](std::string_view text) {
        std::vector<Bind> binds(12);
        for (std::size_t i = 0; i < binds.size(); ++i) {
            binds[i].name = std::to_string(i + 1);
        }
        std::vector<Bind> ordered;
        std::string result = withoutNumbers(text, binds, ordered);
        for (const auto& bind : ordered) {
            result += " " + bind.name;
        }
        return result;
    };
    EXPECT_EQ(plain("SELECT ?2,?1"), "SELECT ?,? 2 1");
    EXPECT_EQ(plain("avg(?12)/count(?12)+?3"), "avg(?)/count(?)+? 12 12 3");
    EXPECT_EQ(plain("'it''s ?1' || \"?2\".\"a\"\"?\" || ?4"),
              "'it''s ?1' || \"?2\".\"a\"\"?\" || ? 4");
    EXPECT_EQ(plain("NULL"), "NULL");
}
