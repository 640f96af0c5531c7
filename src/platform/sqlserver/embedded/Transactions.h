// The transaction of one connection. SQLite's own begins with the first statement that writes, so
// that a transaction which only reads holds no lock and sees what others commit meanwhile.
#pragma once

#include "platform/sqlserver/embedded/Catalogue.h"

#include <string>
#include <string_view>
#include <vector>

namespace velcro::sql::tsql {

class Transactions
{
public:
    Transactions(Catalogue& catalogue, bool autoCommit)
        : catalogue_(catalogue)
        , autoCommit_(autoCommit) {}

    /// @@TRANCOUNT.
    int depth() const { return depth_; }

    void begin() { ++depth_; }
    /// Writes what is open when it is the outermost. 3902 without one, unless work may wait here.
    void commit();
    /// Takes back everything since the outermost begin, and what waited. 3903 without one, unless
    /// work may wait here.
    void rollback();
    /// SAVE TRANSACTION and ROLLBACK to it. 6401 for an unknown name.
    void save(std::string_view name);
    void rollbackTo(std::string_view name);
    bool hasSavepoint(std::string_view name) const;

    /// Before any statement that writes: takes the write lock where a transaction is to last.
    void beforeWrite();

private:
    friend class StatementScope;

    bool isOpen() const;
    void run(const std::string& sqlite);
    void undo(const std::string& sqlite) noexcept;

    Catalogue& catalogue_;
    bool autoCommit_;
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
