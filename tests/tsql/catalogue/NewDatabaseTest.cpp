#include "support/EmbeddedDatabase.h"

#include <gtest/gtest.h>

#include <latch>
#include <thread>
#include <vector>

using velcro::test::EmbeddedDatabase;
using velcro::test::TempFolder;

// Seats that start at the same time meet on a file that none of them has yet.
TEST(NewDatabaseTest, severalMayMakeItAtOnce) {
    constexpr int seats = 8;
    for (int round = 0; round < 5; ++round) {
        const TempFolder folder;
        std::latch start(seats);
        std::vector<std::string> answers(seats);
        std::vector<std::thread> threads;
        for (int seat = 0; seat < seats; ++seat) {
            threads.emplace_back([&, seat] {
                start.arrive_and_wait();
                try {
                    const auto connection = EmbeddedDatabase::open(folder.path().string(), true);
                    const std::string name = "T" + std::to_string(seat);
                    answers[seat] = EmbeddedDatabase::answerOf(
                        *connection, "CREATE TABLE " + name + " (a int) INSERT INTO " + name +
                                         " VALUES (7) SELECT a FROM " + name);
                } catch (const velcro::sql::SqlError& error) {
                    answers[seat] = error.what();
                }
            });
        }
        for (auto& thread : threads) {
            thread.join();
        }
        for (const auto& answer : answers) {
            EXPECT_EQ(answer, "(-1) (1) 7");
        }
        const auto last = EmbeddedDatabase::open(folder.path().string());
        EXPECT_EQ(EmbeddedDatabase::answerOf(
                      *last, "SELECT COUNT(*), COUNT(DISTINCT object_id) FROM sys.tables"),
                  "8|8");
    }
}
