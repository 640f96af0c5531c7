// The statement that a connection is running, so that another thread can cancel it.
#pragma once

#include "platform/sqlserver/odbc/OdbcApi.h"

#include <mutex>

namespace velcro::sql::odbc {

class RunningStatement
{
public:
    /// The handle can be cancelled while this stands, and must outlive it.
    class Scope
    {
    public:
        Scope(RunningStatement& running, SQLHANDLE statement)
            : running_(running) {
            const std::lock_guard lock(running_.mutex_);
            running_.statement_ = statement;
            running_.cancelled_ = false;
        }
        ~Scope() {
            const std::lock_guard lock(running_.mutex_);
            running_.statement_ = SQL_NULL_HANDLE;
        }
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;

        bool cancelled() const {
            const std::lock_guard lock(running_.mutex_);
            return running_.cancelled_;
        }

    private:
        RunningStatement& running_;
    };

    /// From any thread; does nothing when nothing runs.
    void cancel() noexcept {
        const std::lock_guard lock(mutex_);
        if (statement_ != SQL_NULL_HANDLE) {
            cancelled_ = true;
            SQLCancel(statement_);
        }
    }

private:
    std::mutex mutex_;
    SQLHANDLE statement_ = SQL_NULL_HANDLE;
    bool cancelled_ = false;
};

} // namespace velcro::sql::odbc
