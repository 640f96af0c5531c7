#include "BatchReader.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace velcro::velsql;

namespace {

/// The batches, each "count*text" with line ends as "/".
std::vector<std::string> split(const std::string& script) {
    std::istringstream in(script);
    BatchReader reader(in);
    std::vector<std::string> result;
    while (const auto batch = reader.next()) {
        std::string text = batch->text;
        std::replace(text.begin(), text.end(), '\n', '/');
        result.push_back(std::to_string(batch->count) + "*" + text);
    }
    return result;
}

} // namespace

TEST(BatchReaderTest, goLinesSplitAndTextDoesNot) {
    const std::pair<const char*, std::vector<std::string>> cases[] = {
        {"", {}},
        {"GO\n\nGO\ngo", {}},
        {"a\nb\nGO\nc", {"1*a/b/", "1*c/"}},
        {"a\n  gO \t\r\nb\n", {"1*a/", "1*b/"}},
        {"a\nGO 3\nb\nGO 0\n", {"3*a/", "0*b/"}},
        {"GOTO x\nGO;\nGO x\nGO -1\nGO 2x", {"1*GOTO x/GO;/GO x/GO -1/GO 2x/"}},
        {"x GO\ny", {"1*x GO/y/"}},
        {"s = 'a\nGO\nb'\nGO\nc", {"1*s = 'a/GO/b'/", "1*c/"}},
        {"/* a /* b */\nGO\n*/ d\nGO\nc", {"1*/* a /* b *//GO/*/ d/", "1*c/"}},
        {"[x\nGO\n]\nGO\n\"y\nGO\n\"", {"1*[x/GO/]/", "1*\"y/GO/\"/"}},
        {"-- it's\nGO\nb", {"1*-- it's/", "1*b/"}},
        {"a -- 'x\nGO\n'it''s'\nGO\n", {"1*a -- 'x/", "1*'it''s'/"}},
        {"'open\nGO\n", {"1*'open/GO/"}},
    };
    for (const auto& [script, batches] : cases) {
        EXPECT_EQ(split(script), batches) << script;
    }
}

TEST(BatchReaderTest, whatIsNoTextIsToldWithItsPlace) {
    const std::pair<std::string, const char*> cases[] = {
        {std::string("a\nGO\nb\0c", 8), "line 3, byte 2: a NUL"},
        {"a\n'Gr\xFC\xDF'", "line 2, byte 4: neither UTF-8 nor UTF-16"},
        {"ok \xC3", "line 1, byte 4: neither"},
        {std::string("\xFF\xFE"
                     "a\0\n\0b",
                     7),
         "line 2, byte 1: half a character"},
        {std::string("\xFE\xFF"
                     "\0a\0\0",
                     6),
         "line 1, byte 3: a NUL"},
        {std::string("\xFF\xFE"
                     "\x3D\xD8",
                     4),
         "line 1, byte 1: half a surrogate pair"},
    };
    for (const auto& [script, problem] : cases) {
        try {
            split(script);
            ADD_FAILURE() << "taken: " << problem;
        } catch (const NoText& error) {
            EXPECT_TRUE(std::string(error.what()).starts_with(problem)) << error.what();
        }
    }
}

TEST(BatchReaderTest, filesOfAnyUnicodeEncodingAreRead) {
    const std::vector<std::string> expected{"1*ä 漢/", "1*b/"};
    EXPECT_EQ(split("\xEF\xBB\xBFä 漢\nGO\nb"), expected);
    const std::u16string text = u"ä 漢\nGO\nb";
    std::string little = "\xFF\xFE";
    std::string big = "\xFE\xFF";
    for (const char16_t unit : text) {
        const auto high = static_cast<char>(unit >> 8);
        const auto low = static_cast<char>(unit & 0xFF);
        little += {low, high};
        big += {high, low};
    }
    EXPECT_EQ(split(little), expected);
    EXPECT_EQ(split(big), expected);
}
