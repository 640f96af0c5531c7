// One-shot statements, the register and its search through the embedded end, against the same work
// hand-written for SQLite, and the register in Qt's query model. Each ratio is to the line of raw
// SQLite before it.
#include "Memory.h"

#include "platform/sqlserver/SqlConnection.h"
#include "ui/RowSetModel.h"

#include <QCoreApplication>
#include <QSqlDatabase>
#include <QSqlQueryModel>

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include <sqlite3.h>

using namespace velcro::sql;

namespace {

constexpr int orders = 200'000;
constexpr int columns = 26;

struct Database
{
    std::filesystem::path folder;
    std::unique_ptr<SqlConnection> embedded;
    sqlite3* raw = nullptr;

    Database()
        : folder(std::filesystem::temp_directory_path() /
                 ("velcro-bench-" + std::to_string(std::random_device()()))) {
        std::filesystem::create_directories(folder);
        ConnectionSettings settings;
        settings.server = "embedded:" + folder.string();
        settings.database = "Bench";
        settings.createDatabase = true;
        embedded = createConnection(settings.server);
        embedded->connect(settings);
        makeTables();
        sqlite3_open((folder / "Bench.sqlite").c_str(), &raw);
        sqlite3_exec(raw, "PRAGMA mmap_size=268435456", nullptr, nullptr, nullptr);
    }
    ~Database() {
        sqlite3_close(raw);
        embedded->disconnect();
        std::filesystem::remove_all(folder);
    }

    void makeTables() {
        std::string text = "CREATE TABLE Orders (RecID int IDENTITY(1,1) NOT NULL PRIMARY KEY,"
                           " CO nvarchar(10) NOT NULL, Branch nvarchar(10) NOT NULL,"
                           " CRONo nvarchar(100) NOT NULL";
        for (int i = 4; i < columns; ++i) {
            text += ", C" + std::to_string(i) + " nvarchar(100) NULL";
        }
        embedded->execute(text + ")");
        embedded->execute("CREATE TABLE Written (RecID int IDENTITY(1,1) NOT NULL PRIMARY KEY" +
                          columnList(" nvarchar(100) NULL") + ")");
        embedded->begin();
        for (int row = 0; row < orders; ++row) {
            embedded->execute(insertOrder(row));
        }
        embedded->commit();
        embedded->execute("CREATE INDEX Orders_idx01 ON Orders (CO, Branch, CRONo)");
    }
    static std::string columnList(const std::string& suffix, int first = 1) {
        std::string text;
        for (int i = first; i < columns; ++i) {
            text += ", C" + std::to_string(i) + suffix;
        }
        return text;
    }
    static std::string orderNumber(int row) {
        char text[16];
        std::snprintf(text, sizeof text, "%08d", row);
        return text;
    }
    static std::string insertOrder(int row) {
        std::string text = "INSERT INTO Orders VALUES ('01', 'HQ', '" + orderNumber(row) + "'";
        for (int i = 4; i < columns; ++i) {
            text += ", 'Customer value " + std::to_string((row * 31 + i * 7) % 9'973) + "'";
        }
        return text + ")";
    }
};

Database& database() {
    static Database instance;
    return instance;
}

std::string insertText(int i) {
    std::string text = "INSERT INTO Written (" + Database::columnList("").substr(2) + ") VALUES (";
    for (int column = 1; column < columns; ++column) {
        text +=
            (column == 1 ? "'" : ", '") + std::string("value ") + std::to_string(i + column) + "'";
    }
    return text + ")";
}

sqlite3_stmt* prepare(const std::string& text) {
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(database().raw, text.c_str(), -1, &statement, nullptr);
    return statement;
}

/// Rolled back, since only one of the two connections can write.
void insertEmbedded(benchmark::State& state) {
    auto& connection = *database().embedded;
    std::vector<std::string> texts;
    for (int i = 0; i < 1'000; ++i) {
        texts.push_back(insertText(i));
    }
    connection.begin();
    std::size_t i = 0;
    for (auto _ : state) {
        connection.execute(texts[++i % texts.size()]);
    }
    connection.rollback();
}

void insertRaw(benchmark::State& state) {
    std::string text = "INSERT INTO Written (" + Database::columnList("").substr(2) + ") VALUES (?";
    for (int i = 2; i < columns; ++i) {
        text += ",?";
    }
    sqlite3_exec(database().raw, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
    sqlite3_stmt* statement = prepare(text + ")");
    std::vector<std::string> values;
    for (int i = 0; i < 1'000 + columns; ++i) {
        values.push_back("value " + std::to_string(i));
    }
    std::size_t i = 0;
    for (auto _ : state) {
        ++i;
        for (int column = 1; column < columns; ++column) {
            const auto& value = values[(i + static_cast<std::size_t>(column)) % values.size()];
            sqlite3_bind_text(statement, column, value.data(), static_cast<int>(value.size()),
                              SQLITE_STATIC);
        }
        sqlite3_step(statement);
        sqlite3_reset(statement);
    }
    sqlite3_finalize(statement);
    sqlite3_exec(database().raw, "ROLLBACK", nullptr, nullptr, nullptr);
}

void byKeyEmbedded(benchmark::State& state) {
    int i = 0;
    for (auto _ : state) {
        i = (i + 7'919) % orders;
        benchmark::DoNotOptimize(database().embedded->query(
            "SELECT * FROM Orders WITH (NOLOCK) WHERE [CO] = '01' AND [Branch] = 'HQ'"
            " AND [CRONo] = '" +
            Database::orderNumber(i) + "'"));
    }
}

std::size_t readAll(sqlite3_stmt* statement) {
    std::size_t bytes = 0;
    while (sqlite3_step(statement) == SQLITE_ROW) {
        const int count = sqlite3_column_count(statement);
        for (int column = 0; column < count; ++column) {
            benchmark::DoNotOptimize(sqlite3_column_text(statement, column));
            bytes += static_cast<std::size_t>(sqlite3_column_bytes(statement, column));
        }
    }
    sqlite3_reset(statement);
    return bytes;
}

/// The raw side compares without regard to case too; SQLite's own order knows only ASCII.
void makeRawTable() {
    static const bool made = [] {
        const std::string file = (database().folder / "raw.db").string();
        const std::string steps = "ATTACH '" + file + "' AS r; CREATE TABLE r.o (RecID INTEGER" +
                                  " PRIMARY KEY, CO TEXT COLLATE NOCASE, Branch TEXT COLLATE" +
                                  " NOCASE, CRONo TEXT COLLATE NOCASE" +
                                  Database::columnList(" TEXT COLLATE NOCASE", 4) +
                                  "); INSERT INTO r.o SELECT * FROM main.Orders;"
                                  " CREATE INDEX r.oi ON o (CO, Branch, CRONo)";
        return sqlite3_exec(database().raw, steps.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK;
    }();
    if (!made) {
        std::fprintf(stderr, "no raw table: %s\n", sqlite3_errmsg(database().raw));
        std::abort();
    }
}

void byKeyRaw(benchmark::State& state) {
    makeRawTable();
    sqlite3_stmt* statement = prepare("SELECT * FROM o WHERE CO=?1 AND Branch=?2"
                                      " AND CRONo=?3");
    int i = 0;
    for (auto _ : state) {
        i = (i + 7'919) % orders;
        const std::string number = Database::orderNumber(i);
        sqlite3_bind_text(statement, 1, "01", -1, SQLITE_STATIC);
        sqlite3_bind_text(statement, 2, "HQ", -1, SQLITE_STATIC);
        sqlite3_bind_text(statement, 3, number.c_str(), -1, SQLITE_TRANSIENT);
        benchmark::DoNotOptimize(readAll(statement));
    }
    sqlite3_finalize(statement);
}

void registerEmbedded(benchmark::State& state) {
    for (auto _ : state) {
        const RowSet rows = database().embedded->query(
            "SELECT * FROM Orders WITH (NOLOCK) WHERE [CO] = '01' AND [Branch] = 'HQ'"
            " ORDER BY [CRONo] DESC");
        state.counters["memory"] = static_cast<double>(rows.memoryUse());
        benchmark::DoNotOptimize(rows);
    }
}

void registerRaw(benchmark::State& state) {
    makeRawTable();
    sqlite3_stmt* statement = prepare("SELECT * FROM o WHERE CO='01' AND Branch='HQ'"
                                      " ORDER BY CRONo DESC");
    for (auto _ : state) {
        state.counters["bytes"] = static_cast<double>(readAll(statement));
    }
    sqlite3_finalize(statement);
}

/// The register as rows of the grid's model, ready to paint.
void registerGridModelEmbedded(benchmark::State& state) {
    velcro::ui::RowSetModel model;
    std::vector<velcro::ui::GridColumn> shown;
    for (int i = 4; i < columns; ++i) {
        shown.push_back({QStringLiteral("C%1").arg(i)});
    }
    model.setColumns(std::move(shown));
    const auto before = bench::heapBytes();
    for (auto _ : state) {
        model.setRows(database().embedded->query(
            "SELECT * FROM Orders WITH (NOLOCK) WHERE [CO] = '01' AND [Branch] = 'HQ'"
            " ORDER BY [CRONo] DESC"));
        for (int row = 0; row < 30; ++row) {
            benchmark::DoNotOptimize(model.data(model.index(row, 0)));
        }
    }
    state.counters["memory"] = static_cast<double>(bench::heapBytes() - before);
}

/// Qt's own model over the same file, fetched to its end as the register is.
void registerQtModel(benchmark::State& state) {
    makeRawTable();
    auto qt = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
    qt.setDatabaseName(QString::fromStdString((database().folder / "raw.db").string()));
    if (!qt.open()) {
        state.SkipWithError("Qt's driver does not open the file");
        return;
    }
    for (auto _ : state) {
        const auto before = bench::heapBytes();
        QSqlQueryModel model;
        model.setQuery(QStringLiteral("SELECT * FROM o WHERE CO='01' AND Branch='HQ'"
                                      " ORDER BY CRONo DESC"),
                       qt);
        while (model.canFetchMore()) {
            model.fetchMore();
        }
        state.counters["memory"] = static_cast<double>(bench::heapBytes() - before);
        state.counters["rows"] = model.rowCount();
    }
}

constexpr const char* searched[] = {"CRONo", "C4", "C5", "C6", "C7"};

void searchEmbedded(benchmark::State& state) {
    std::string text =
        "SELECT * FROM Orders WITH (NOLOCK) WHERE [CO] = '01' AND [Branch] = 'HQ' AND";
    for (const char* column : searched) {
        text += std::string(column == searched[0] ? " [" : " OR [") + column + "] LIKE '%lue 997%'";
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(database().embedded->query(text + " ORDER BY [CRONo] DESC"));
    }
}

void searchRaw(benchmark::State& state) {
    makeRawTable();
    std::string text = "SELECT * FROM o WHERE CO='01' AND Branch='HQ' AND";
    for (const char* column : searched) {
        text += std::string(column == searched[0] ? " " : " OR ") + column + " LIKE '%lue 997%'";
    }
    sqlite3_stmt* statement = prepare(text + " ORDER BY CRONo DESC");
    for (auto _ : state) {
        benchmark::DoNotOptimize(readAll(statement));
    }
    sqlite3_finalize(statement);
}

BENCHMARK(insertRaw);
BENCHMARK(insertEmbedded);
BENCHMARK(byKeyRaw);
BENCHMARK(byKeyEmbedded);
BENCHMARK(registerRaw)->Unit(benchmark::kMillisecond);
BENCHMARK(registerEmbedded)->Unit(benchmark::kMillisecond);
BENCHMARK(registerGridModelEmbedded)->Unit(benchmark::kMillisecond);
BENCHMARK(registerQtModel)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(searchRaw)->Unit(benchmark::kMillisecond);
BENCHMARK(searchEmbedded)->Unit(benchmark::kMillisecond);

/// Prints each pair's ratio behind the usual lines.
class WithRatios : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        const double time = runs.front().GetAdjustedRealTime();
        if (runs.front().benchmark_name().ends_with("Raw")) {
            raw_ = time;
        } else {
            std::printf("    ratio %.2f\n", time / raw_);
        }
    }

private:
    double raw_ = 1;
};

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv); // Qt's drivers are found through it
    benchmark::Initialize(&argc, argv);
    WithRatios reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
