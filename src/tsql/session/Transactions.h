// The transaction of one connection. SQLite's own begins with the first statement that writes, so
// that a transaction which only reads holds no lock and sees what others commit meanwhile.
#pragma once

#include "tsql/catalogue/Catalogue.h"
#include "tsql/session/TemporaryTables.h"

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velcro::sql::tsql {

/// Who is told of the end of each transaction.
struct TransactionWatch
{
    std::function<void()> beforeCommit;        // one that has written; its last work
    std::function<void(bool written)> afterIt; // written: committed with what beforeCommit did
};

class Transactions
{
public:
    Transactions(Catalogue& catalogue, TemporaryTables& temporary, bool autoCommit,
                 TransactionWatch watch)
        : catalogue_(catalogue)
        , temporary_(temporary)
        , autoCommit_(autoCommit)
        , watch_(std::move(watch)) {}

    /// True when what is written now waits for commit().
    bool lasts() const { return depth_ > 0 || !autoCommit_; }

    /// @@TRANCOUNT.
    int depth() const { return depth_; }
    /// True when SQLite has taken everything back by itself, as it does when the disk is full.
    /// Nothing can be written then before a rollback.
    bool isLost() const { return writing_ && !isOpen(); }

    void begin() { ++depth_; }
    /// Writes what is open when it is the outermost. 3902 without one, unless work may wait here;
    /// 3930 when what was to be written is lost, which also ends it.
    void commit();
    /// Takes back everything since the outermost begin, and what waited. 3903 without one, unless
    /// work may wait here.
    void rollback();
    /// SAVE TRANSACTION and ROLLBACK to it. 6401 for an unknown name.
    void save(std::string_view name);
    void rollbackTo(std::string_view name);
    bool hasSavepoint(std::string_view name) const;

    /// Before any statement that writes: takes the write lock where a transaction is to last. 3930
    /// when what was written before in it is lost.
    void beforeWrite();
    /// Before a batch: reads anew what could not be read when it was taken back.
    void catchUp();

private:
    friend class StatementScope;

    bool isOpen() const;
    void run(const std::string& sqlite);
    void undo(const std::string& sqlite) noexcept;
    void ended(bool written = false);

    Catalogue& catalogue_;
    TemporaryTables& temporary_;
    bool autoCommit_;
    TransactionWatch watch_;
    bool behind_ = false;  // what is held in memory does not know of the last rollback
    bool writing_ = false; // SQLite's transaction was begun, for one that is to last
    int depth_ = 0;
    std::vector<std::string> savepoints_;
};

/// Keeps the steps of one statement whole: taken back when it is left without done().
class StatementScope
{
public:
    explicit StatementScope(Transactions& transactions);
    ~StatementScope();
    StatementScope(const StatementScope&) = delete;
    StatementScope& operator=(const StatementScope&) = delete;

    void done();

private:
    Transactions& transactions_;
    bool nested_;
    bool done_ = false;
};

} // namespace velcro::sql::tsql
