// Sweeps that are killed, crowded, cut off or refused: the next one finishes the database, and no row
// is lost.
#include "schema/TillSeat.h"
#include "support/ChildProcess.h"
#include "support/DroppingServer.h"
#include "support/FailureOf.h"
#include "support/FullDisk.h"
#include "support/OrdinaryUser.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <thread>

namespace fs = std::filesystem;
using velcro::test::ChildProcess;
using velcro::test::ChildWork;
using velcro::test::DroppingServer;
using velcro::test::EmbeddedDatabase;
using velcro::test::FullDisk;
using velcro::test::OrdinaryUser;
using velcro::test::Report;
using velcro::test::schemaOf;
using velcro::test::TempFolder;
using velcro::test::TillSeat;

namespace {

const char* const parkedSale = "INSERT INTO POSParkHeader (CO, DocNo) VALUES ('01', 'P-1')";

std::string folderOf(const EmbeddedDatabase& database) {
    return database.folder().path().string();
}

int sweepOnce(const std::string& folder, const QString& name) {
    TillSeat seat(folder, name);
    seat.sweep();
    return seat.refused.isEmpty() ? 0 : 1;
}

/// What a killed process leaves goes with the till's folder.
void leaveNothingBehind(const std::string& folder) {
    for (const char* variable : {"TMPDIR", "TEMP", "TMP"}) {
        qputenv(variable, folder.c_str());
    }
}

/// Tells of each step by a byte, and stays there when it is done.
int sweepReporting(const ChildWork::Arguments& of, const Report& report) {
    leaveNothingBehind(of.at(0));
    TillSeat seat(of.at(0));
    const auto tell = [&report] { report.tell(".", 1); };
    velcro::schema::gSchemaWatch = {.afterLookUp = tell,
                                    .afterSend = [tell](const QString&, bool) { tell(); }};
    seat.sweep();
    Report::wait();
    return 0;
}
const ChildWork reportingSweep("reportingSweep", sweepReporting);

const ChildWork sweepCutOff("sweepCutOff", [](const ChildWork::Arguments& of, const Report&) {
    leaveNothingBehind(of.at(0));
    TillSeat seat(of.at(0));
    velcro::schema::gSchemaWatch.afterSend = [](const QString& statement, bool) {
        if (statement.startsWith("CREATE TABLE [dbo].[SYSAudit]")) {
            ChildProcess::killOneself();
        }
    };
    seat.sweep();
    return 0;
});

const ChildWork otherSeat("otherSeat", [](const ChildWork::Arguments& of, const Report&) {
    return sweepOnce(of.at(0), "SEAT2");
});

const ChildWork readOnlySweep("readOnlySweep", [](const ChildWork::Arguments& of, const Report&) {
    const OrdinaryUser user;
    TillSeat seat(of.at(0));
    const QString failure = failureOf([&] { seat.sweep(); });
    return seat.sent.size() == seat.refused.size() && gErrorMsg.contains("read-only") &&
                   failure == "no failure"
               ? 0
               : 1;
});

/// Into a folder that is there, over files that are; not every library's own copy does that.
void copyFiles(const fs::path& from, const fs::path& to) {
    for (const auto& entry : fs::directory_iterator(from)) {
        fs::remove(to / entry.path().filename());
        fs::copy_file(entry.path(), to / entry.path().filename());
    }
}

/// A till after one sweep that nothing disturbs.
class SweptTill
{
public:
    SweptTill() {
        EmbeddedDatabase database;
        {
            TillSeat seat(folderOf(database));
            seat.sweep();
            steps = seat.lookUps + static_cast<int>(seat.sent.size());
        }
        schema = schemaOf(database.connection());
        database.connection().disconnect();
        copyFiles(database.folder().path(), folder_.path());
    }
    /// Takes the place of a database that nobody has used yet.
    void copyTo(EmbeddedDatabase& database) const {
        database.connection().disconnect();
        copyFiles(folder_.path(), database.folder().path());
        database.connection().connect(
            {.server = "embedded:" + folderOf(database), .database = "Shop"});
    }

    int steps = 0; // look-ups and statements
    std::string schema;

private:
    TempFolder folder_;
};

const SweptTill& sweptTill() {
    static const SweptTill till;
    return till;
}

const std::string& wholeSchema() {
    return sweptTill().schema;
}

} // namespace

// VELCRO_KILLS says how often; once each time the tests run, many by hand.
TEST(SweepFaultsTest, aKilledSweepIsFinishedByTheNext) {
    const char* wanted = std::getenv("VELCRO_KILLS");
    const int kills = wanted == nullptr ? 1 : std::atoi(wanted);
    std::mt19937 random(41);
    for (int i = 0; i < kills; ++i) {
        EmbeddedDatabase database;
        const std::string folder = folderOf(database);
        ChildProcess child(reportingSweep, {folder});
        std::string steps(1 + random() % sweptTill().steps, ' ');
        ASSERT_TRUE(child.read(steps.data(), steps.size()));
        std::this_thread::sleep_for(std::chrono::microseconds(random() % 2000));
        child.kill();
        EXPECT_EQ(child.wait(), ChildProcess::killed);
        const std::string parked = database.answer(parkedSale);
        EXPECT_EQ(sweepOnce(folder, "SEAT1"), 0);
        EXPECT_TRUE(schemaOf(database.connection()) == wholeSchema()) << "kill " << i;
        EXPECT_EQ(database.answer("SELECT DocNo FROM POSParkHeader"), parked == "(1)" ? "P-1" : "");
    }
}

TEST(SweepFaultsTest, aTableThatWasCutOffFromItsKeyGetsIt) {
    EmbeddedDatabase database;
    sweptTill().copyTo(database);
    database.answer("DROP TABLE SYSAudit");
    ChildProcess child(sweepCutOff, {folderOf(database)});
    EXPECT_EQ(child.wait(), ChildProcess::killed);
    EXPECT_EQ(database.answer("SELECT COUNT(*) FROM sys.indexes I WHERE I.object_id ="
                              " OBJECT_ID('SYSAudit') AND I.is_primary_key = 1"),
              "0");
    EXPECT_EQ(sweepOnce(folderOf(database), "SEAT1"), 0);
    EXPECT_TRUE(schemaOf(database.connection()) == wholeSchema());
}

// What the one has made first is refused to the other, and passed over.
TEST(SweepFaultsTest, twoSeatsSweepOneTillAtTheSameMoment) {
    EmbeddedDatabase database;
    const std::string folder = folderOf(database);
    ChildProcess other(otherSeat, {folder});
    sweepOnce(folder, "SEAT1");
    const int ending = other.wait();
    EXPECT_TRUE(ending == 0 || ending == 1) << "to its end: " << ending;
    EXPECT_TRUE(schemaOf(database.connection()) == wholeSchema());
    EXPECT_EQ(database.answer("SELECT PCName, DBVersion FROM SYSTillControl ORDER BY PCName"),
              "SEAT1|14.47.41;SEAT2|14.47.41");
}

TEST(SweepFaultsTest, aDiskThatIsFullHalfWayLosesNothing) {
    EmbeddedDatabase database;
    {
        TillSeat seat(folderOf(database));
        const FullDisk disk(500'000);
        // What cannot be made is passed over; a look-up may find no room either.
        failureOf([&] { seat.sweep(); });
        EXPECT_FALSE(seat.refused.isEmpty());
    }
    EXPECT_EQ(database.answer(parkedSale), "(1)");
    EXPECT_EQ(sweepOnce(folderOf(database), "SEAT1"), 0);
    EXPECT_EQ(database.answer("SELECT DocNo FROM POSParkHeader"), "P-1");
    EXPECT_EQ(database.answer("SELECT COUNT(*) FROM sys.tables"), "159");
}

TEST(SweepFaultsTest, aReadOnlyTillIsReadAndLeftAsItIs) {
    EmbeddedDatabase database;
    sweptTill().copyTo(database);
    database.answer("DROP TABLE SYSAudit; UPDATE SYSTillControl SET DBVersion = '14.0'");
    const std::string before = schemaOf(database.connection());
    database.connection().disconnect();
    const fs::path file = database.folder().file("Shop.sqlite");
    fs::permissions(database.folder().path(), fs::perms(0777)); // the file alone is read-only
    fs::permissions(file, fs::perms(0444));
    ChildProcess child(readOnlySweep, {folderOf(database)});
    EXPECT_EQ(child.wait(), 0) << "refused in words";
    fs::permissions(file, fs::perms(0666));
    const auto again = database.open();
    EXPECT_TRUE(schemaOf(*again) == before);
    EXPECT_EQ(EmbeddedDatabase::answerOf(*again, "SELECT DBVersion FROM SYSTillControl"), "14.0");
}

TEST(SweepFaultsTest, aTillLockedByAnotherProgramEndsTheSweepInWords) {
    EmbeddedDatabase database;
    sweptTill().copyTo(database);
    database.answer("DROP TABLE SYSAudit; UPDATE SYSTillControl SET DBVersion = '14.0'");
    {
        TillSeat seat(folderOf(database));
        tData->VelmaraTILL.run("SET LOCK_TIMEOUT 1", {}); // else it waits for long
        database.connection().begin();
        database.answer(parkedSale);
        EXPECT_TRUE(failureOf([&] { seat.sweep(); }).contains("Lock request time out"));
        database.connection().commit();
    }
    EXPECT_EQ(database.answer("SELECT DBVersion FROM SYSTillControl"), "14.0");
    EXPECT_EQ(sweepOnce(folderOf(database), "SEAT1"), 0);
    EXPECT_TRUE(schemaOf(database.connection()) == wholeSchema());
    EXPECT_EQ(database.answer("SELECT DocNo FROM POSParkHeader"), "P-1");
}

TEST(SweepFaultsTest, aConnectionLostInTheMiddleIsTakenUpAgain) {
    EmbeddedDatabase database;
    DroppingServer server;
    TillSeat seat(folderOf(database));
    int drops = 0;
    velcro::schema::gSchemaWatch.afterLookUp = [&] {
        if (server.dropped()) {
            server.dropAt(++drops == 1 ? 1500 : 0);
        }
    };
    server.dropAt(7);
    seat.sweep();
    EXPECT_EQ(drops, 2);
    EXPECT_TRUE(schemaOf(database.connection()) == wholeSchema());
}
