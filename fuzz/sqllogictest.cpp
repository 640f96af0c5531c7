// Puts the files of the public sqllogictest corpus to the embedded end: sqllogictest <file>...
// Prints how many queries there were, how many answered as the corpus has it, what was refused and
// why, and each answer that differs. The exit status is 1 when one does, or when nothing was asked.
#include "CorpusFile.h"

#include "platform/sqlserver/SqlConnection.h"
#include "support/TempFolder.h"

#include <QtCore/QCryptographicHash>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <numeric>
#include <optional>

using velcro::fuzz::CorpusFile;
using velcro::fuzz::CorpusRecord;
using velcro::sql::RowSet;
using velcro::sql::SqlConnection;
using velcro::sql::SqlError;

namespace {

struct Tally
{
    std::size_t queries = 0;
    std::size_t equal = 0;
    std::size_t different = 0;
    std::map<std::string, std::size_t> refused; // queries, by the error
    std::map<std::string, std::size_t> failed;  // statements that should have run
    std::size_t taken = 0;                      // statements that should have failed

    void add(const Tally& other) {
        queries += other.queries;
        equal += other.equal;
        different += other.different;
        taken += other.taken;
        for (const auto& [reason, count] : other.refused) {
            refused[reason] += count;
        }
        for (const auto& [reason, count] : other.failed) {
            failed[reason] += count;
        }
    }
};

/// A value as the corpus writes it.
std::string cellText(const RowSet& rows, std::size_t row, std::size_t column, char type) {
    if (rows.isNull(row, column)) {
        return "NULL";
    }
    std::string text(rows.text(row, column));
    char buffer[64];
    switch (type) {
    case 'I':
        return std::to_string(static_cast<long long>(std::strtod(text.c_str(), nullptr)));
    case 'R':
        std::snprintf(buffer, sizeof buffer, "%.3f", std::strtod(text.c_str(), nullptr));
        return buffer;
    default:
        std::replace_if(
            text.begin(), text.end(), [](char c) { return c < ' ' || c > '~'; }, '@');
        return text.empty() ? "(empty)" : text;
    }
}

std::vector<std::string> values(const RowSet& rows, const CorpusRecord& record) {
    std::vector<std::vector<std::string>> cells(rows.rowCount());
    for (std::size_t row = 0; row < cells.size(); ++row) {
        for (std::size_t i = 0; i < rows.columnCount(); ++i) {
            cells[row].push_back(cellText(rows, row, i, record.types.at(i)));
        }
    }
    if (record.order == "rowsort") {
        std::sort(cells.begin(), cells.end());
    }
    std::vector<std::string> flat;
    for (const auto& row : cells) {
        flat.insert(flat.end(), row.begin(), row.end());
    }
    if (record.order == "valuesort") {
        std::sort(flat.begin(), flat.end());
    }
    return flat;
}

std::string hashLine(const std::vector<std::string>& values) {
    QCryptographicHash md5(QCryptographicHash::Md5);
    for (const auto& value : values) {
        md5.addData(QByteArray::fromStdString(value + "\n"));
    }
    return std::to_string(values.size()) + " values hashing to " +
           md5.result().toHex().toStdString();
}

bool answersAs(const CorpusRecord& record, const RowSet& rows) {
    if (rows.columnCount() != record.types.size()) {
        return false;
    }
    const auto found = values(rows, record);
    const bool hashed = record.expected.size() == 1 &&
                        record.expected.front().find(" values hashing to ") != std::string::npos;
    return hashed ? hashLine(found) == record.expected.front() : found == record.expected;
}

std::string reasonOf(const SqlError& error) {
    return std::to_string(error.number()) + " " + error.what();
}

void ask(SqlConnection& connection, const CorpusRecord& record, const std::string& file,
         Tally& tally) {
    ++tally.queries;
    try {
        const RowSet rows = connection.query(record.sql);
        if (answersAs(record, rows)) {
            ++tally.equal;
            return;
        }
        ++tally.different;
        std::printf("%s:%zu differs: %s", file.c_str(), record.line, record.sql.c_str());
    } catch (const SqlError& error) {
        // Which column it was is no other reason.
        ++tally.refused[error.number() == 8120 ? "8120" : reasonOf(error)];
    }
}

void run(SqlConnection& connection, const CorpusRecord& record, Tally& tally) {
    try {
        connection.execute(record.sql);
        tally.taken += record.mustFail ? 1 : 0;
    } catch (const SqlError& error) {
        if (!record.mustFail) {
            ++tally.failed[reasonOf(error)];
        }
    }
}

Tally runFile(const std::string& path) {
    const velcro::test::TempFolder folder;
    velcro::sql::ConnectionSettings settings;
    settings.server = "embedded:" + folder.path().string();
    settings.database = "Corpus";
    settings.createDatabase = true;
    const auto connection = velcro::sql::createConnection(settings.server);
    connection->connect(settings);
    CorpusFile file(path);
    CorpusRecord record;
    Tally tally;
    while (file.next(record)) {
        if (record.kind == CorpusRecord::Kind::Query) {
            ask(*connection, record, path, tally);
        } else {
            run(*connection, record, tally);
        }
    }
    return tally;
}

void print(const char* name, const Tally& tally) {
    const auto refused =
        std::accumulate(tally.refused.begin(), tally.refused.end(), std::size_t{0},
                        [](std::size_t sum, const auto& entry) { return sum + entry.second; });
    std::printf("%s: %zu queries, %zu equal, %zu refused, %zu different\n", name, tally.queries,
                tally.equal, refused, tally.different);
    for (const auto& [reason, count] : tally.refused) {
        std::printf("  refused %zu: %s\n", count, reason.c_str());
    }
    for (const auto& [reason, count] : tally.failed) {
        std::printf("  statements failed %zu: %s\n", count, reason.c_str());
    }
    if (tally.taken > 0) {
        std::printf("  statements taken that should fail: %zu\n", tally.taken);
    }
    std::fflush(stdout);
}

} // namespace

int main(int count, char** arguments) {
    Tally all;
    try {
        for (int i = 1; i < count; ++i) {
            const Tally one = runFile(arguments[i]);
            print(arguments[i], one);
            all.add(one);
        }
    } catch (const std::exception& error) {
        std::fprintf(stderr, "sqllogictest: %s\n", error.what());
        return 2;
    }
    print("all", all);
    return all.queries > 0 && all.different == 0 ? 0 : 1;
}
