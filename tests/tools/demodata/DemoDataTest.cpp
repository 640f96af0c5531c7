// velcro-demo as a program: what it writes, and what it refuses.
#include "support/CommandLine.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>

namespace fs = std::filesystem;

namespace {

using velcro::test::TempFolder;

int generate(const fs::path& out, const std::string& more) {
    return velcro::test::runLine(velcro::test::programWord(VELCRO_DEMO_PROGRAM) +
                                 " \"" VELCRO_SAMPLE_DATA "\" \"" + out.string() + "\" " + more +
                                 " 2>\"" + out.string() + ".errors\"");
}

std::string contents(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

std::map<std::string, std::string> filesIn(const fs::path& folder) {
    std::map<std::string, std::string> files;
    for (const auto& entry : fs::directory_iterator(folder)) {
        files[entry.path().filename().string()] = contents(entry.path());
    }
    return files;
}

} // namespace

TEST(DemoDataTest, TheSameDayGivesTheSameRowsEveryTime) {
    const TempFolder folder;
    ASSERT_EQ(generate(folder.path() / "one", "embedded:/seat 2024/02/29"), 0);
    ASSERT_EQ(generate(folder.path() / "two", "embedded:/seat 2024/02/29"), 0);
    const auto one = filesIn(folder.path() / "one");
    EXPECT_EQ(one, filesIn(folder.path() / "two"));
    EXPECT_TRUE(one.contains("suite-90-orders.sql"));
}

TEST(DemoDataTest, TheSeatIsPutIntoScriptsQuotedAndIntoTheConfigurationAsItIs) {
    const TempFolder folder;
    ASSERT_EQ(generate(folder.path() / "out", "\"embedded:/it's here\" 2026/03/01"), 0);
    const auto settings = contents(folder.path() / "out" / "common-10-settings.sql");
    EXPECT_NE(settings.find("'embedded:/it''s here'"), std::string::npos);
    const auto configuration = contents(folder.path() / "out" / "MSHelp16.cnf");
    EXPECT_NE(configuration.find("\nHost=embedded:/it's here\n"), std::string::npos);
    const auto users = contents(folder.path() / "out" / "suite-20-users.sql");
    EXPECT_NE(users.find("'2025/12/31'"), std::string::npos) << "60 days before the first of March";
    for (const auto& [name, text] : filesIn(folder.path() / "out")) {
        EXPECT_EQ(text.find("$("), std::string::npos) << "left open in " << name;
    }
}

TEST(DemoDataTest, PeriodsFollowTheDayAlsoOverTheEndOfAYear) {
    const TempFolder folder;
    ASSERT_EQ(generate(folder.path() / "out", "embedded:/seat 2024/01/31"), 0);
    const auto calendar = contents(folder.path() / "out" / "suite-60-calendar.sql");
    for (const char* period :
         {"('01', 202401, '2024/01/01', '2024/01/31', 'N', '', 'Y', 'Y', 2024)",
          "('01', 202402, '2024/02/01', '2024/02/29', 'Y', '', 'Y', 'Y', 2024)",
          "('01', 202312, '2023/12/01', '2023/12/31', 'N', '', 'Y', 'Y', 2024)",
          "('01', 202311, '2023/11/01', '2023/11/30', 'N', '', 'N', 'N', 2024)",
          "('02', 202401, '2024/01/01', '2024/01/31', 'N', '', 'N', 'N', 2024)"}) {
        EXPECT_NE(calendar.find(period), std::string::npos) << period;
    }
    EXPECT_EQ(calendar.find("('03', 202401"), std::string::npos) << "company 03 lacks this month";
}

TEST(DemoDataTest, RefusesWhatItCannotUse) {
    const TempFolder folder;
    for (const char* more : {"", "embedded:/seat 2023/02/29", "embedded:/seat 29/02/2024",
                             "embedded:/seat 2024/02/29 more"}) {
        EXPECT_NE(generate(folder.path() / "out", more), 0) << more;
        EXPECT_FALSE(fs::exists(folder.path() / "out")) << more;
        EXPECT_NE(contents(folder.path() / "out.errors"), "") << more;
    }
}
