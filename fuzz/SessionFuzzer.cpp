// Fuzzes a whole embedded session. An input is a text of batches between lines of GO; each runs in a
// transaction of its own, as the program's run routine does it, and is taken back. Whatever it did,
// the database is then as it was, a refusal was a SqlError with its number and line, and the
// connection goes on. A batch that runs a second time, now from the caches, says the same again.
#include "FuzzDatabase.h"
#include "StatementMutator.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <optional>

using velcro::sql::Blob;
using velcro::sql::Parameter;
using velcro::sql::SqlError;
using velcro::sql::SqlErrorKind;

namespace {

constexpr std::size_t batchesOfAnInput = 3;
constexpr int stepsOfABatch = 40'000;

FuzzDatabase& database() {
    static FuzzDatabase made;
    return made;
}

[[noreturn]] void fail(const char* what, const std::string& batch, const std::string& more = {}) {
    std::fprintf(stderr, "%s\nbatch: %s\n%s\n", what, batch.c_str(), more.c_str());
    std::abort();
}

std::string lowered(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

template <std::size_t size>
bool mentions(const std::string& lowerText, const std::array<const char*, size>& words) {
    return std::any_of(words.begin(), words.end(),
                       [&](const char* word) { return lowerText.find(word) != std::string::npos; });
}

/// Ends the transaction that it runs in, or runs a text that might.
bool mayCommit(const std::string& lowerText) {
    return mentions(lowerText, std::array{"commit", "rollback", "exec", "sp_"});
}

/// Settings and tables that outlive the batch, on a real server too.
bool changesTheSession(const std::string& lowerText) {
    return mentions(lowerText, std::array{"nocount", "identity_insert", "lock_timeout", "#"});
}

/// Its answer depends on the time, on chance or on what ran before.
bool isVolatile(const std::string& lowerText) {
    return mayCommit(lowerText) || changesTheSession(lowerText) ||
           mentions(lowerText, std::array{"@@", "date", "time", "newid", "rand", "number",
                                          "identity", "ident_"});
}

std::vector<std::string> batchesOf(std::string_view text) {
    std::vector<std::string> batches(1);
    while (!text.empty()) {
        const auto end = std::min(text.find('\n'), text.size() - 1) + 1;
        const auto line = text.substr(0, end);
        text.remove_prefix(end);
        if (line == "GO\n") {
            if (batches.size() == batchesOfAnInput) {
                break;
            }
            batches.emplace_back();
        } else {
            batches.back() += line;
        }
    }
    return batches;
}

const std::vector<Parameter>& parameters() {
    static const std::vector<Parameter> all{{"CO", std::string("01")},
                                            {"Branch", std::string("100")},
                                            {"UserCode", std::string("ANN")},
                                            {"ScreenID", std::string("G1")},
                                            {"GridSettings", std::string("[Grid]\r\nw=\0x", 12)},
                                            {"CRONo", std::string("A1")},
                                            {"ItemNo", std::int64_t{1}},
                                            {"ProcessID", std::int64_t{-1}},
                                            {"Rate", 15.5},
                                            {"Nothing", std::monostate()},
                                            {"ImageData", Blob{std::string("\x89PNG")}}};
    return all;
}

std::string textOf(const velcro::sql::RowSet& rows) {
    std::string text = std::to_string(rows.columnCount()) + " columns";
    for (std::size_t row = 0; row < rows.rowCount(); ++row) {
        text += '\n';
        for (std::size_t column = 0; column < rows.columnCount(); ++column) {
            text += rows.isNull(row, column) ? "NULL" : rows.text(row, column);
            text += '|';
        }
    }
    return text;
}

std::string textOf(const velcro::sql::SqlMessage& message) {
    return std::to_string(message.number) + " at " + std::to_string(message.line) + ":" +
           std::to_string(message.column) + " " + message.text;
}

void checkRefusal(const SqlError& error, const std::string& batch) {
    const auto lines = std::count(batch.begin(), batch.end(), '\n') +
                       std::count(batch.begin(), batch.end(), '\r') + 1;
    const int line = error.message().line;
    // A procedure's lines, and those of a text that is run, are counted from its own begin.
    const bool ownText = !mayCommit(lowered(batch));
    if (error.number() <= 0 || line < 1 || (ownText && line > lines) ||
        error.kind() != SqlErrorKind::Statement || error.statement() != batch) {
        fail("a refusal without its number, line or text", batch, textOf(error.message()));
    }
}

/// What the batch said, to its end or to its refusal.
std::string run(const std::string& batch) {
    std::string said;
    try {
        const bool bound = batch.find(':') != std::string::npos;
        database().connection().run(
            batch, bound ? std::span(parameters()) : std::span<const Parameter>(),
            [&said](velcro::sql::StatementResult&& result) {
                said += result.rows ? textOf(*result.rows) : std::to_string(result.affected);
                for (const auto& message : result.messages) {
                    said += textOf(message);
                }
                said += '\n';
            });
    } catch (const SqlError& error) {
        checkRefusal(error, batch);
        said += textOf(error.message());
    }
    return said;
}

void takeBack(const std::string& batch) {
    auto& connection = database().connection();
    try {
        connection.rollback();
    } catch (const SqlError& error) {
        constexpr int noTransaction = 3903;
        if (error.number() != noTransaction || !mayCommit(lowered(batch))) {
            fail("a rollback was refused", batch, error.what());
        }
    }
    if (!database().isAtRest()) {
        fail("a transaction is still open", batch);
    }
    if (!database().isAsMade()) {
        if (!mayCommit(lowered(batch))) {
            fail("the batch was not taken back", batch);
        }
        database().restore();
    }
}

void checkConnectionGoesOn(const std::string& batch) {
    try {
        const auto rows =
            database().connection().query("SELECT (SELECT COUNT(*) FROM FuzzControl), @@TRANCOUNT");
        if (rows.integer(0, 0) != 3 || rows.integer(0, 1) != 0) {
            fail("the connection is not as before", batch, textOf(rows));
        }
    } catch (const SqlError& error) {
        fail("the connection cannot be used any more", batch, error.what());
    }
}

/// Nothing when the batch was interrupted: what it says then depends on its steps.
std::optional<std::string> runAndTakeBack(const std::string& batch) {
    database().allowSteps(stepsOfABatch);
    database().connection().begin();
    const std::string said = run(batch);
    const bool interrupted = database().wasInterrupted();
    database().allowSteps(1'000'000);
    takeBack(batch);
    checkConnectionGoesOn(batch);
    return interrupted ? std::nullopt : std::optional(said);
}

void check(const std::string& batch) {
    const std::string lowerText = lowered(batch);
    const auto first = runAndTakeBack(batch);
    if (first && !isVolatile(lowerText)) {
        const auto second = runAndTakeBack(batch);
        if (second && *second != *first) {
            fail("a second run says something else", batch, *first + "\nsecond:\n" + *second);
        }
    }
    if (changesTheSession(lowerText)) {
        database().reconnect();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    for (const auto& batch : batchesOf({reinterpret_cast<const char*>(data), size})) {
        check(batch);
    }
    return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(unsigned char* data, std::size_t size,
                                               std::size_t maximum, unsigned int seed) {
    return mutateStatements(data, size, maximum, seed);
}

extern "C" std::size_t LLVMFuzzerCustomCrossOver(const unsigned char* first, std::size_t firstSize,
                                                 const unsigned char* second,
                                                 std::size_t secondSize, unsigned char* out,
                                                 std::size_t maximum, unsigned int seed) {
    return crossStatements({reinterpret_cast<const char*>(first), firstSize},
                           {reinterpret_cast<const char*>(second), secondSize}, out, maximum, seed);
}
