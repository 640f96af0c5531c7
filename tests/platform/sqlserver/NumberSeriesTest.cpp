// Document numbers: never given twice, none left out, and one wait for the disk with the order.
#include "support/ChildProcess.h"
#include "support/DiskWaits.h"
#include "support/EmbeddedDatabase.h"
#include "support/OrdinaryUser.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <set>

using velcro::test::ChildProcess;
using velcro::test::ChildWork;
using velcro::test::EmbeddedDatabase;
using velcro::test::Report;
using velcro::test::TempFolder;

namespace {

namespace fs = std::filesystem;

constexpr const char* draw = "EXEC VELMARA_GENERATE_NUMBER '01', 'A', 'CRO', 'CROMST'";
constexpr const char* orders = "CREATE TABLE Orders (CRONo int NOT NULL)";

/// A number taken as the program takes it: on a connection whose work waits for its commit.
std::string takenOrder(velcro::sql::SqlConnection& connection) {
    const std::string number = EmbeddedDatabase::answerOf(connection, draw);
    connection.begin();
    connection.execute("INSERT INTO Orders VALUES ('" + number + "')");
    connection.commit();
    return number;
}

std::unique_ptr<velcro::sql::SqlConnection> suite(const std::string& folder) {
    velcro::sql::ConnectionSettings settings;
    settings.server = "embedded:" + folder;
    settings.database = "Shop";
    settings.autoCommit = false;
    auto connection = velcro::sql::createConnection(settings.server);
    connection->connect(settings);
    return connection;
}

void copyFiles(const fs::path& from, std::string_view nameBegin, const fs::path& to) {
    for (const auto& entry : fs::directory_iterator(from)) {
        const std::string name = entry.path().filename().string();
        if (name.starts_with(nameBegin)) {
            fs::copy_file(entry.path(), to / name, fs::copy_options::overwrite_existing);
        }
    }
}

/// More on request: VELCRO_DRAWS=10000.
int wantedDraws() {
    const char* value = std::getenv("VELCRO_DRAWS");
    return value != nullptr ? std::atoi(value) : 60;
}

/// Of the folder, so many numbers, each reported; how it works and ends follows from its own number.
int takeNumbers(const ChildWork::Arguments& of, const Report& report) {
    const int i = std::stoi(of.at(1));
    // Half of them in transactions, of which some end without a row.
    const auto connection = i % 2 == 0 ? EmbeddedDatabase::open(of.at(0)) : suite(of.at(0));
    for (int taken = 0; taken < std::stoi(of.at(2)); ++taken) {
        const auto number = static_cast<std::int32_t>(connection->query(draw).integer(0, 0));
        if (!report.tell(&number, sizeof number)) {
            return 1;
        }
        if (i % 2 == 1 && taken % 3 != 0) {
            connection->execute("INSERT INTO Orders VALUES (1)");
            taken % 3 == 1 ? connection->commit() : connection->rollback();
        }
    }
    if (i < 4) { // these end without a word, with a number in hand
        ChildProcess::killOneself();
    }
    return 0;
}
const ChildWork numberTaker("numberTaker", takeNumbers);

} // namespace

TEST(NumberSeriesTest, numbersSurviveARollbackAndBeginAfterTheKnownOne) {
    EmbeddedDatabase database;
    database.connection().execute(
        "CREATE TABLE SYSNumbers (CO nvarchar(10) NULL, Branch nvarchar(10) NULL,"
        " ModCode nvarchar(6) NULL, TxTp nvarchar(12) NULL, Number int NOT NULL)"
        " INSERT INTO SYSNumbers VALUES ('01', 'A', 'CRO', 'CROMST', 600)");
    const auto other = database.open();
    EXPECT_EQ(database.answer(draw), "601");
    database.connection().begin();
    database.connection().execute("DELETE FROM SYSNumbers");
    EXPECT_EQ(database.answer(draw), "602");
    EXPECT_EQ(EmbeddedDatabase::answerOf(*other, draw), "603");
    database.connection().rollback();
    EXPECT_EQ(database.answer("EXEC VELMARA_GENERATE_NUMBER '01', 'a ', 'cro', 'CROMST'"), "604");
    EXPECT_EQ(database.answer("EXEC VELMARA_GENERATE_NUMBER @TXTP = 'CROMST', @CO = '01',"
                              " @MODCODE = 'CRO', @BRANCH = 'A'"),
              "605");
    EXPECT_EQ(database.answer("EXEC VELMARA_GENERATE_NUMBER '01', 'B', 'CRO', 'CROMST'"), "1");
    EXPECT_EQ(database.answer("EXEC VELMARA_GENERATE_NUMBER '01'"), "error 201");
    EXPECT_EQ(database.answer("EXEC VELMARA_GENERATE_NUMBER '01', 'B', 'C', 'D', 'E'"),
              "error 8144");
}

TEST(NumberSeriesTest, damageIsToldAndTheDatabaseIsUsedOn) {
    EmbeddedDatabase database;
    database.connection().execute(orders);
    const std::string numbers = database.folder().file("Shop.numbers");
    std::ofstream(numbers) << std::string(5000, 'x');
    try {
        database.connection().execute(draw);
        FAIL() << "a number was drawn from a damaged file";
    } catch (const velcro::sql::SqlError& error) {
        EXPECT_EQ(error.number(), 824);
        EXPECT_NE(std::string(error.what()).find("numbers in the file 'Shop.numbers' are damaged"),
                  std::string::npos)
            << error.what();
    }
    EXPECT_EQ(fs::file_size(numbers), 5000U);
    EXPECT_EQ(database.answer("INSERT INTO Orders VALUES (7) SELECT CRONo FROM Orders"), "(1) 7");
    // A file that was taken out of the way is made anew.
    fs::remove(numbers);
    EXPECT_EQ(database.answer(draw), "1");
}

TEST(NumberSeriesTest, anOrderWaitsForTheDiskOnceAndItsNumberWithIt) {
    velcro::test::DiskWaits waits;
    EmbeddedDatabase database;
    database.connection().execute(orders);
    const auto connection = suite(database.folder().path().string());
    EXPECT_EQ(takenOrder(*connection), "1");
    waits.taken("");
    EXPECT_EQ(takenOrder(*connection), "2");
    EXPECT_EQ(waits.taken("Shop.sqlite-wal"), 1);
    EXPECT_EQ(waits.taken(""), 0) << "nothing else waited";

    // What no row keeps waits by itself.
    EmbeddedDatabase::answerOf(*connection, draw);
    EXPECT_EQ(waits.taken(""), 0);
    connection->rollback();
    EXPECT_EQ(waits.taken("Shop.numbers-wal"), 1);
    EmbeddedDatabase::answerOf(*connection, draw);
    connection->commit();
    EXPECT_EQ(waits.taken("Shop.numbers-wal"), 1);
    EXPECT_EQ(database.answer(draw), "5");
    EXPECT_EQ(waits.taken("Shop.numbers-wal"), 1) << "outside a transaction";
    EmbeddedDatabase::answerOf(*connection, draw);
    connection->disconnect();
    EXPECT_GE(waits.taken("Shop.numbers-wal"), 1);
}

TEST(NumberSeriesTest, aNumberInACommittedOrderIsNotGivenAgainAfterThePowerWasCut) {
    EmbeddedDatabase database;
    database.connection().execute(orders);
    const std::string folder = database.folder().path().string();
    const auto connection = suite(folder);
    const auto other = suite(folder);
    EXPECT_EQ(takenOrder(*connection), "1");
    // What was written without a wait may be gone: the counters as they are now, the rows as they
    // are after the commits.
    const TempFolder later;
    copyFiles(folder, "Shop.numbers", later.path());
    EXPECT_EQ(EmbeddedDatabase::answerOf(*other, draw), "2");
    EXPECT_EQ(takenOrder(*connection), "3");
    other->begin();
    other->execute("INSERT INTO Orders VALUES (2)");
    other->commit(); // the lower number last
    copyFiles(folder, "Shop.sqlite", later.path());
    const auto after = suite(later.path().string());
    EXPECT_EQ(EmbeddedDatabase::answerOf(*after, "SELECT MAX(CRONo) FROM Orders"), "3");
    EXPECT_EQ(takenOrder(*after), "4");

    // Without its counters the database still knows what it holds.
    const TempFolder rowsOnly;
    copyFiles(folder, "Shop.sqlite", rowsOnly.path());
    EXPECT_EQ(takenOrder(*suite(rowsOnly.path().string())), "4");
}

TEST(NumberSeriesTest, processesTakeDifferentNumbersWithoutAGapAlsoWhenSomeAreKilled) {
    const TempFolder folder;
    const std::string path = folder.path().string();
    EmbeddedDatabase::open(path, true)->execute(orders);
    constexpr int processes = 8;
    const int each = wantedDraws();
    std::vector<std::unique_ptr<ChildProcess>> children;
    for (int i = 0; i < processes; ++i) {
        children.push_back(std::make_unique<ChildProcess>(
            numberTaker, ChildWork::Arguments{path, std::to_string(i), std::to_string(each)}));
    }
    std::set<std::int32_t> drawn;
    for (const auto& child : children) {
        std::int32_t number = 0;
        while (child->read(&number, sizeof number)) {
            EXPECT_TRUE(drawn.insert(number).second) << number << " was given twice";
        }
        child->wait();
    }
    EXPECT_EQ(drawn.size(), static_cast<std::size_t>(processes * each));
    EXPECT_EQ(*drawn.rbegin(), processes * each) << "one was left out";
    EXPECT_EQ(takenOrder(*suite(path)), std::to_string(processes * each + 1));
}

TEST(NumberSeriesTest, databaseAndNumbersAreForTheirOwnerAlone) {
    const velcro::test::OpenFiles usual;
    const EmbeddedDatabase database;
    EXPECT_EQ(database.answer("CREATE TABLE SYSNumbers (CO nvarchar(10), Branch nvarchar(10),"
                              " ModCode nvarchar(6), TxTp nvarchar(12), Number int)"),
              "(-1)");
    EXPECT_EQ(database.answer(draw), "1");
    std::set<std::string> kinds;
    for (const auto& entry : fs::directory_iterator(database.folder().path())) {
        kinds.insert(entry.path().extension().string());
        EXPECT_EQ(entry.status().permissions() & (fs::perms::group_all | fs::perms::others_all),
                  fs::perms::none)
            << entry.path();
    }
    EXPECT_TRUE(kinds.contains(".sqlite") && kinds.contains(".sqlite-wal") &&
                kinds.contains(".numbers"));
}
