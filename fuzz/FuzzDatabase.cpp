#include "FuzzDatabase.h"

#include <cstring>
#include <fstream>

#include <sqlite3.h>

namespace fs = std::filesystem;

namespace {

constexpr int stepsAtOnce = 100;
FuzzDatabase* theDatabase = nullptr;

void runScript(velcro::sql::SqlConnection& connection, const fs::path& path) {
    std::ifstream file(path);
    std::string batch;
    for (std::string line; std::getline(file, line);) {
        if (line == "GO") {
            connection.execute(batch);
            batch.clear();
        } else {
            batch += line + "\n";
        }
    }
    connection.execute(batch);
}

} // namespace

FuzzDatabase::FuzzDatabase() {
    theDatabase = this;
    sqlite3_auto_extension(reinterpret_cast<void (*)()>(watch));
    connect(true);
    fill();
    made_ = image();
    restore();
}

FuzzDatabase::~FuzzDatabase() {
    connection_.reset();
    theDatabase = nullptr;
}

/// SQLite calls this for each connection that is opened.
int FuzzDatabase::watch(sqlite3* database, const char**, const void*) {
    const std::string name = sqlite3_db_filename(database, "main");
    if (name.ends_with(".sqlite")) {
        theDatabase->file_ = database;
        // Small pages make a small file, which is quick to compare.
        sqlite3_exec(database, "PRAGMA page_size = 1024", nullptr, nullptr, nullptr);
        sqlite3_limit(database, SQLITE_LIMIT_LENGTH, 1 << 22);
        const auto note = [](void* self) {
            static_cast<FuzzDatabase*>(self)->wrote_ = true;
            return 0;
        };
        sqlite3_commit_hook(database, note, theDatabase);
        sqlite3_rollback_hook(
            database, [](void* self) { static_cast<FuzzDatabase*>(self)->wrote_ = true; },
            theDatabase);
        sqlite3_progress_handler(database, stepsAtOnce, countDown, theDatabase);
    }
    return SQLITE_OK;
}

int FuzzDatabase::countDown(void* self) {
    auto& database = *static_cast<FuzzDatabase*>(self);
    database.stepsLeft_ -= stepsAtOnce;
    database.interrupted_ = database.interrupted_ || database.stepsLeft_ <= 0;
    return database.stepsLeft_ <= 0 ? 1 : 0;
}

void FuzzDatabase::allowSteps(int steps) {
    stepsLeft_ = steps;
    interrupted_ = false;
}

void FuzzDatabase::connect(bool create) {
    allowSteps(1'000'000'000);
    velcro::sql::ConnectionSettings settings;
    settings.server = "embedded:" + folder_.path().string();
    settings.database = "Fuzz";
    settings.createDatabase = create;
    connection_ = velcro::sql::createConnection(settings.server);
    connection_->connect(settings);
    wrote_ = false;
}

void FuzzDatabase::fill() {
    connection_->begin();
    // A part of the program's tables: what an input costs grows with their number.
    for (const char* script : {"common-01-tables.sql", "suite-05-repairs.sql"}) {
        runScript(*connection_, fs::path(DEPLOY_FOLDER) / script);
    }
    runScript(*connection_, fs::path(FUZZ_FOLDER) / "rows.sql");
    connection_->commit();
}

std::string FuzzDatabase::image() const {
    sqlite3_int64 size = 0;
    unsigned char* bytes = sqlite3_serialize(file_, "main", &size, 0);
    std::string copy(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(size));
    sqlite3_free(bytes);
    // The write-ahead log is a matter of the open file; a file that is written back begins without.
    constexpr std::size_t fileFormat = 18;
    copy.replace(fileFormat, 2, "\1\1");
    return copy;
}

bool FuzzDatabase::isAtRest() const {
    return sqlite3_get_autocommit(file_) != 0;
}

bool FuzzDatabase::isAsMade() {
    if (!wrote_) {
        return true;
    }
    wrote_ = false;
    return image() == opened_;
}

void FuzzDatabase::reconnect() {
    connection_.reset();
    connect(false);
}

void FuzzDatabase::restore() {
    connection_.reset();
    for (const char* suffix : {"-wal", "-shm"}) {
        fs::remove(folder_.file("Fuzz.sqlite") + suffix);
    }
    std::ofstream(folder_.file("Fuzz.sqlite"), std::ios::binary) << made_;
    connect(false);
    opened_ = image();
}
