#include "platform/sqlserver/embedded/Transactions.h"

#include "platform/sqlserver/embedded/Collation.h"
#include "platform/sqlserver/embedded/Errors.h"
#include "platform/sqlserver/embedded/Functions.h"

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

/// What cannot be taken back has been taken back by SQLite already.
void Transactions::undo(const std::string& sqlite) noexcept {
    sqlite3_exec(catalogue_.database(), sqlite.c_str(), nullptr, nullptr, nullptr);
    if (catalogue_.changedInTransaction()) {
        catalogue_.reload();
    }
}

void Transactions::beforeWrite() {
    if ((depth_ > 0 || !autoCommit_) && !isOpen()) {
        run("BEGIN IMMEDIATE");
    }
}

void Transactions::commit() {
    if (depth_ == 0 && autoCommit_) {
        raise(3902);
    }
    if (depth_ > 1) {
        --depth_;
        return;
    }
    if (isOpen()) {
        run("COMMIT");
    }
    depth_ = 0;
    savepoints_.clear();
    catalogue_.committed();
}

void Transactions::rollback() {
    if (depth_ == 0 && autoCommit_) {
        raise(3903);
    }
    depth_ = 0;
    savepoints_.clear();
    if (isOpen()) {
        undo("ROLLBACK");
    }
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
    if (!isOpen()) {
        raise(6401, {name});
    }
    sqlite3* database = catalogue_.database();
    const std::string text = "ROLLBACK TO " + quoteName(name);
    if (sqlite3_exec(database, text.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) {
        raise(6401, {name});
    }
    if (catalogue_.changedInTransaction()) {
        catalogue_.reload();
    }
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
        transactions_.catalogue_.committed();
    }
}

StatementScope::~StatementScope() {
    if (done_ || !transactions_.isOpen()) {
        return;
    }
    if (nested_) {
        transactions_.undo(std::string("ROLLBACK TO ") + statementSavepoint);
        transactions_.undo(std::string("RELEASE ") + statementSavepoint);
    } else {
        transactions_.undo("ROLLBACK");
    }
}

} // namespace velcro::sql::tsql
