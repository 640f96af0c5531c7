#include "tsql/session/Transactions.h"

#include "tsql/functions/Functions.h"
#include "tsql/values/Collation.h"
#include "tsql/values/Errors.h"

#include <algorithm>

#include <sqlite3.h>

namespace velcro::sql::tsql {

namespace {

constexpr const char* statementSavepoint = "\"statement$\"";

} // namespace

bool Transactions::isOpen() const {
    return sqlite3_get_autocommit(catalogue_.database()) == 0;
}

void Transactions::run(const std::string& sqlite) {
    sqlite3* database = catalogue_.database();
    const int code = sqlite3_exec(database, sqlite.c_str(), nullptr, nullptr, nullptr);
    if (code != SQLITE_OK) {
        throw faultFromSqlite(database, code, catalogue_, "UPDATE");
    }
}

/// What cannot be taken back has been taken back by SQLite already. What is held in memory follows.
void Transactions::undo(const std::string& sqlite) noexcept {
    if (isOpen()) {
        sqlite3_exec(catalogue_.database(), sqlite.c_str(), nullptr, nullptr, nullptr);
    }
    try {
        if (catalogue_.changedInTransaction()) {
            catalogue_.reload();
        }
        temporary_.followRollback();
    } catch (const Fault&) {
        behind_ = true;
    }
}

void Transactions::catchUp() {
    if (behind_) {
        catalogue_.reload();
        temporary_.followRollback();
        behind_ = false;
    }
}

void Transactions::ended(bool written) {
    depth_ = 0;
    writing_ = false;
    savepoints_.clear();
    catalogue_.transactionEnded();
    temporary_.transactionEnded();
    watch_.afterIt(written);
}

void Transactions::beforeWrite() {
    if (isLost()) {
        raise(3930);
    }
    if (lasts() && !isOpen()) {
        run("BEGIN IMMEDIATE");
        writing_ = true;
    }
}

void Transactions::commit() {
    if (!lasts()) {
        raise(3902);
    }
    if (isLost()) {
        rollback();
        raise(3930);
    }
    if (depth_ > 1) {
        --depth_;
        return;
    }
    const bool written = isOpen();
    if (written) {
        watch_.beforeCommit();
        run("COMMIT");
    }
    ended(written);
}

void Transactions::rollback() {
    if (!lasts()) {
        raise(3903);
    }
    undo("ROLLBACK");
    ended();
}

void Transactions::save(std::string_view name) {
    if (depth_ == 0) {
        raise(628);
    }
    beforeWrite();
    run("SAVEPOINT " + quoteName(name));
    savepoints_.emplace_back(name);
}

bool Transactions::hasSavepoint(std::string_view name) const {
    return std::any_of(savepoints_.begin(), savepoints_.end(),
                       [&](const std::string& known) { return sameName(known, name); });
}

void Transactions::rollbackTo(std::string_view name) {
    if (!isOpen() || !hasSavepoint(name)) {
        raise(6401, {name});
    }
    undo("ROLLBACK TO " + quoteName(name));
}

StatementScope::StatementScope(Transactions& transactions)
    : transactions_(transactions) {
    transactions_.beforeWrite();
    nested_ = transactions_.isOpen();
    transactions_.run(nested_ ? std::string("SAVEPOINT ") + statementSavepoint : "BEGIN IMMEDIATE");
}

void StatementScope::done() {
    transactions_.run(nested_ ? std::string("RELEASE ") + statementSavepoint : "COMMIT");
    done_ = true;
    if (!nested_) {
        transactions_.ended();
    }
}

StatementScope::~StatementScope() {
    if (done_) {
        return;
    }
    if (nested_) {
        const std::string name = statementSavepoint;
        transactions_.undo("ROLLBACK TO " + name + "; RELEASE " + name);
    } else {
        transactions_.undo("ROLLBACK");
        transactions_.ended();
    }
}

} // namespace velcro::sql::tsql
