// What happens when processes meet on one folder, or are stopped in the middle of their work.
#include "support/ChildProcess.h"
#include "support/EmbeddedDatabase.h"
#include "support/FullDisk.h"
#include "support/OrdinaryUser.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <optional>
#include <random>
#include <thread>

#include <sqlite3.h>

using velcro::sql::SqlError;
using velcro::test::ChildProcess;
using velcro::test::ChildWork;
using velcro::test::EmbeddedDatabase;
using velcro::test::OrdinaryUser;
using velcro::test::Report;
using velcro::test::TempFolder;

namespace {

/// A database that this process keeps no connection to: SQLite's locks do not outlive a fork.
class SharedFolder
{
public:
    explicit SharedFolder(const char* setUp) {
        EmbeddedDatabase::open(path(), true)->execute(setUp);
    }
    std::string path() const { return folder_.path().string(); }
    std::string answer(const std::string& batch) const {
        return EmbeddedDatabase::answerOf(*EmbeddedDatabase::open(path()), batch);
    }

private:
    TempFolder folder_;
};

constexpr const char* tables = "CREATE TABLE Orders (CRONo int NOT NULL)"
                               " CREATE INDEX Orders_idx01 ON Orders (CRONo)"
                               " CREATE TABLE Items (CRONo int NOT NULL, ItemNo int NOT NULL,"
                               " Notes nvarchar(200) NULL)"
                               " CREATE INDEX Items_idx01 ON Items (CRONo, ItemNo)";
constexpr int itemsOfAnOrder = 3;

/// One order with its items as one batch in one transaction, the way the program writes.
void writeOrder(velcro::sql::SqlConnection& connection, int number) {
    const std::string no = "'" + std::to_string(number) + "'";
    std::string batch = "INSERT INTO Orders (CRONo) VALUES (" + no + ") ;\n";
    for (int item = 1; item <= itemsOfAnOrder; ++item) {
        batch += "INSERT INTO Items (CRONo, ItemNo, Notes) VALUES (" + no + ", '" +
                 std::to_string(item) + "', '" + std::string(150, 'n') + "') ;\n";
    }
    connection.begin();
    connection.execute(batch);
    connection.commit();
}

using Arguments = ChildWork::Arguments;

/// Orders without end, from a number on; each is reported once it is confirmed.
const ChildWork endlessOrders("endlessOrders", [](const Arguments& of, const Report& report) {
    const auto connection = EmbeddedDatabase::open(of.at(0));
    for (int number = std::stoi(of.at(1));; ++number) {
        writeOrder(*connection, number);
        if (!report.tell(&number, sizeof number)) {
            return 1;
        }
    }
});

const ChildWork someOrders("someOrders", [](const Arguments& of, const Report&) {
    const auto connection = EmbeddedDatabase::open(of.at(0));
    for (int number = 0; number < 25; ++number) {
        writeOrder(*connection, std::stoi(of.at(1)) + number);
    }
    return 0;
});

/// Writes until the disk is full, and one more when there is room again; reports how many are kept.
int ordersOnAFullDisk(const Arguments& of, const Report& report) {
    const auto connection = EmbeddedDatabase::open(of.at(0));
    const auto answer = [&](const char* batch) {
        return EmbeddedDatabase::answerOf(*connection, batch);
    };
    writeOrder(*connection, 1);
    std::optional<velcro::test::FullDisk> full(300'000);
    for (int number = 2; number < 10'000; ++number) {
        try {
            writeOrder(*connection, number);
        } catch (const SqlError& error) {
            const bool told = error.number() != 0 && *error.what() != '\0';
            // The order was taken back already: what follows in its transaction must not be
            // written without it, even when there is room again.
            full.reset();
            const bool lost =
                answer("SELECT XACT_STATE(), @@TRANCOUNT INSERT INTO Orders VALUES (0)") ==
                "-1|1 error 3930";
            connection->rollback();
            // The program goes on, on the same connection.
            int kept = number - 1;
            const bool reads = answer("SELECT COUNT(*) FROM Orders") == std::to_string(kept);
            writeOrder(*connection, number);
            ++kept;
            return told && lost && reads && report.tell(&kept, sizeof kept) ? 0 : 2;
        }
    }
    return 1;
}
const ChildWork fullDisk("fullDisk", ordersOnAFullDisk);

const ChildWork keepOpen("keepOpen", [](const Arguments& of, const Report& report) {
    const auto connection = EmbeddedDatabase::open(of.at(0));
    connection->query("SELECT COUNT(*) FROM Orders");
    report.tell("!", 1);
    Report::wait();
    return 0;
});

const ChildWork withoutRights("withoutRights", [](const Arguments& of, const Report&) {
    const OrdinaryUser user;
    const auto connection = EmbeddedDatabase::open(of.at(0));
    const auto answer = [&](const char* batch) {
        return EmbeddedDatabase::answerOf(*connection, batch);
    };
    if (!user.works() || answer("SELECT COUNT(*) FROM Orders") != "0") {
        return 1;
    }
    return answer("INSERT INTO Orders VALUES (1)") == "error 3906" ? 0 : 2;
});

/// "0 0" when every order from that number on has all its items, and every item its order.
std::string halfOrders(const SharedFolder& database, int first = 0) {
    const auto from = std::to_string(first);
    return database.answer("SELECT COUNT(*) FROM Orders O WHERE O.CRONo >= " + from +
                           " AND (SELECT COUNT(*) FROM Items I WHERE I.CRONo = O.CRONo) <> 3"
                           " SELECT COUNT(*) FROM Items I WHERE I.CRONo >= " +
                           from +
                           " AND NOT EXISTS"
                           " (SELECT 1 FROM Orders O WHERE O.CRONo = I.CRONo)");
}

/// More on request: VELCRO_KILLS=5000.
int wanted(const char* variable, int usual) {
    const char* value = std::getenv(variable);
    return value != nullptr ? std::atoi(value) : usual;
}

} // namespace

TEST(EmbeddedFaultsTest, aKilledProcessLeavesWholeBatchesAndWhatItConfirmed) {
    const SharedFolder database(tables);
    const std::string folder = database.path();
    std::mt19937 random(7);
    std::uniform_int_distribution<int> microseconds(0, 25'000);
    int lastConfirmed = 0;
    int allConfirmed = 0;
    for (int kill = 0; kill < wanted("VELCRO_KILLS", 150); ++kill) {
        const int first = (kill + 1) * 10'000;
        ChildProcess child(endlessOrders, {folder, std::to_string(first)});
        int confirmed = 0;
        // Most are killed while they write, however long this machine takes until then, and some
        // while they open the database.
        if (kill % 5 != 0 && child.read(&confirmed, sizeof confirmed)) {
            lastConfirmed = confirmed;
        }
        std::this_thread::sleep_for(std::chrono::microseconds(microseconds(random)));
        child.kill();
        ASSERT_EQ(child.wait(), ChildProcess::killed);
        while (child.read(&confirmed, sizeof confirmed)) {
            lastConfirmed = confirmed;
        }
        // All that is there takes long to look at: mostly what this child may have touched.
        const bool lookAtAll = kill % 50 == 49;
        ASSERT_EQ(halfOrders(database, lookAtAll ? 0 : first), "0 0") << "after kill " << kill;
        if (lastConfirmed >= first) {
            allConfirmed += lastConfirmed - first + 1;
            const auto count = std::to_string(lastConfirmed - first + 1);
            ASSERT_EQ(database.answer("SELECT COUNT(*) FROM Orders WHERE CRONo BETWEEN " +
                                      std::to_string(first) + " AND " +
                                      std::to_string(lastConfirmed)),
                      count)
                << "after kill " << kill;
        }
    }
    EXPECT_GT(lastConfirmed, 0) << "no child came to write anything";
    EXPECT_EQ(halfOrders(database), "0 0");
    EXPECT_GE(std::stoi(database.answer("SELECT COUNT(*) FROM Orders")), allConfirmed);
}

TEST(EmbeddedFaultsTest, processesWriteToOneFolder) {
    const SharedFolder database(tables);
    const std::string folder = database.path();
    std::vector<std::unique_ptr<ChildProcess>> children;
    for (int i = 1; i <= 4; ++i) {
        children.push_back(std::make_unique<ChildProcess>(
            someOrders, Arguments{folder, std::to_string(i * 1'000)}));
    }
    for (const auto& child : children) {
        EXPECT_EQ(child->wait(), 0);
    }
    EXPECT_EQ(database.answer("SELECT COUNT(*) FROM Orders"), "100");
    EXPECT_EQ(halfOrders(database), "0 0");
}

TEST(EmbeddedFaultsTest, aFullDiskIsToldAndLosesNothingThatWasConfirmed) {
    const SharedFolder database(tables);
    const std::string folder = database.path();
    ChildProcess child(fullDisk, {folder});
    int kept = 0;
    EXPECT_TRUE(child.read(&kept, sizeof kept));
    EXPECT_EQ(child.wait(), 0);
    EXPECT_EQ(database.answer("SELECT COUNT(*) FROM Orders"), std::to_string(kept));
    EXPECT_EQ(halfOrders(database), "0 0");
}

TEST(EmbeddedFaultsTest, withoutRightsTheFileIsReadAndNotChanged) {
    const SharedFolder database(tables);
    const std::string folder = database.path();
    namespace fs = std::filesystem;
    fs::permissions(folder, fs::perms(0755));
    // While somebody who may write is connected, the others can read along.
    ChildProcess keeper(keepOpen, {folder});
    char ready = 0;
    ASSERT_TRUE(keeper.read(&ready, 1));
    for (const auto& entry : fs::directory_iterator(folder)) {
        fs::permissions(entry.path(), OrdinaryUser::isNeeded() ? fs::perms(0644) : fs::perms(0444));
    }
    ChildProcess child(withoutRights, {folder});
    EXPECT_EQ(child.wait(), 0);
    EXPECT_EQ(database.answer("SELECT COUNT(*) FROM Orders"), "0");
}

TEST(EmbeddedFaultsTest, aReadOnlyDatabaseThatNobodyHasOpenIsReadOrTold) {
    const SharedFolder database(tables);
    const std::string folder = database.path();
    writeOrder(*EmbeddedDatabase::open(folder), 1);
    namespace fs = std::filesystem;
    for (const auto& entry : fs::directory_iterator(folder)) {
        fs::permissions(entry.path(), fs::perms(0444));
    }
    const auto tried = [&](const char* batch) {
        const OrdinaryUser user;
        EXPECT_TRUE(user.works());
        try {
            return EmbeddedDatabase::answerOf(*EmbeddedDatabase::open(folder), batch);
        } catch (const SqlError& error) {
            EXPECT_EQ(error.number(), 5120);
            EXPECT_EQ(error.kind(), velcro::sql::SqlErrorKind::NotConnected);
            return std::string(error.what());
        }
    };
    const char* const insert = "INSERT INTO Orders VALUES (2)";
    const char* const count = "SELECT COUNT(*) FROM Orders";
    fs::permissions(folder, fs::perms(0555));
    for (const char* batch : {count, insert}) {
        EXPECT_EQ(tried(batch), "Unable to open the physical file \"" + folder +
                                    "/Shop.sqlite\": its folder cannot be written.");
    }
    fs::permissions(folder, fs::perms(0777)); // the file alone is read-only
    EXPECT_EQ(tried(count), "1");
    EXPECT_EQ(tried(insert), "error 3906");
    EXPECT_EQ(tried(count), "1");
    fs::permissions(folder + "/Shop.sqlite", fs::perms(0666));
    EXPECT_EQ(tried(insert), "(1)");
    EXPECT_EQ(tried(count), "2");
    EXPECT_EQ(halfOrders(database), "1 0") << "the order just made has no items";
}

TEST(EmbeddedFaultsTest, aFileThatAnotherProcessKeepsLockedIsToldAfterTheTimeGiven) {
    const velcro::test::TempFolder folder;
    sqlite3* holder = nullptr;
    ASSERT_EQ(sqlite3_open(folder.file("Shop.sqlite").c_str(), &holder), SQLITE_OK);
    ASSERT_EQ(
        sqlite3_exec(holder, "CREATE TABLE t (a); BEGIN EXCLUSIVE", nullptr, nullptr, nullptr),
        SQLITE_OK);
    velcro::sql::ConnectionSettings settings;
    settings.server = "embedded:" + folder.path().string();
    settings.database = "Shop";
    settings.connectTimeoutSeconds = 1;
    const auto connection = velcro::sql::createConnection(settings.server);
    try {
        connection->connect(settings);
        ADD_FAILURE() << "connected to a locked file";
    } catch (const SqlError& error) {
        EXPECT_EQ(error.number(), 1222);
        EXPECT_EQ(error.kind(), velcro::sql::SqlErrorKind::NotConnected);
    }
    sqlite3_close(holder);
    EXPECT_NO_THROW(connection->connect(settings));
}
