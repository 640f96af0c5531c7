// Sweeps of a till database: the first, from an empty file, and the next, which finds all in place.
// The reference makes the same tables, keys and indexes in SQLite's own words, each statement in a
// durable transaction of its own.
//   SweepBench [rounds]
#include "RawTable.h"
#include "Stopwatch.h"

#include "data/DataUCMN.h"
#include "data/DataUTIL.h"
#include "data/Session.h"
#include "schema/SysTillDBMods.h"
#include "support/TempFolder.h"

#include <QCoreApplication>

#include <cstdlib>
#include <vector>

using bench::RawDatabase;
using bench::Rounds;
using velcro::test::TempFolder;

namespace {

class Till
{
public:
    explicit Till(const std::string& folder) {
        gLocHost = QString::fromStdString("embedded:" + folder);
        gLocDBName = "Till";
        gSQLPath = QString::fromStdString(folder + "/");
        tData = std::make_unique<TtData>();
        tData->ConnectDB_TIL();
        cData = std::make_unique<TcData>();
        cData->VelmaraCommon.setConnectString(
            sfg_BuildUNIConnectionStr(gLocHost, gLocDBName, {}, {}, {}, {}));
        cData->VelmaraCommon.Connect();
    }
    ~Till() {
        cData.reset();
        tData.reset();
    }
    Till(const Till&) = delete;
    Till& operator=(const Till&) = delete;

    static void sweep() {
        tb_Upgrade();
        tb_Update_TillDBVersion(requiredTillDBVersion);
    }
};

/// What makes the tables and indexes of a swept file, as SQLite keeps it, without the stand-in's own
/// collation and helpers. A table's key comes after it, as it does in the sweep.
std::vector<std::string> madeOf(const std::string& file) {
    RawDatabase swept(file);
    const auto select = swept.prepare(
        "SELECT replace(sql, ' COLLATE SQL_CI_AS', ''), type, name FROM sqlite_master"
        " WHERE sql IS NOT NULL AND type IN ('table', 'index') AND name NOT LIKE 'sqlite_%'"
        " AND name NOT LIKE 'sys$%' ORDER BY type DESC, rowid");
    std::vector<std::string> statements;
    const auto text = [&select](int column) {
        return std::string(
            reinterpret_cast<const char*>(sqlite3_column_text(select.get(), column)));
    };
    while (sqlite3_step(select.get()) == SQLITE_ROW) {
        statements.push_back(text(0));
        if (text(1) == "table") {
            statements.push_back("CREATE UNIQUE INDEX \"" + text(2) + "_idx00\" ON \"" + text(2) +
                                 "\" (RecID)");
        }
    }
    return statements;
}

void makeRaw(const std::string& file, const std::vector<std::string>& statements) {
    RawDatabase raw(file);
    for (const auto& statement : statements) {
        raw.execute("BEGIN IMMEDIATE");
        raw.execute(statement);
        raw.execute("COMMIT");
    }
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const int rounds = argc > 1 ? std::atoi(argv[1]) : 10;
    Rounds first, again, raw;
    for (int i = 0; i < rounds; ++i) { // by turns, so that all meet the same machine
        const TempFolder folder;
        {
            const Till till(folder.path().string());
            first.run(Till::sweep);
            again.run(Till::sweep);
        }
        const auto statements = madeOf(folder.file("Till.sqlite"));
        raw.run([&] { makeRaw(folder.file("raw.sqlite"), statements); });
        if (i == 0) {
            std::printf("%zu statements of the reference\n", statements.size());
        }
    }
    bench::printHead();
    bench::print("sweep of an empty till", first, raw, 2);
    bench::print("the next sweep against the first", again, first, 0.5);
    return 0;
}
