// Owners of ODBC's environment, connection and statement handles, so that each is freed on every
// path.
#pragma once

#include "platform/sqlserver/odbc/OdbcApi.h"

#include <new>
#include <utility>

namespace velcro::sql::odbc {

template <SQLSMALLINT Type>
class Handle
{
public:
    Handle() = default;
    /// parent is the environment of a connection, the connection of a statement.
    explicit Handle(SQLHANDLE parent) {
        if (!SQL_SUCCEEDED(SQLAllocHandle(Type, parent, &handle_))) {
            throw std::bad_alloc();
        }
    }
    ~Handle() {
        if (handle_ != SQL_NULL_HANDLE) {
            SQLFreeHandle(Type, handle_);
        }
    }
    Handle(Handle&& other) noexcept
        : handle_(std::exchange(other.handle_, nullptr)) {}
    Handle& operator=(Handle&& other) noexcept {
        std::swap(handle_, other.handle_);
        return *this;
    }

    SQLHANDLE get() const { return handle_; }
    explicit operator bool() const { return handle_ != SQL_NULL_HANDLE; }

private:
    SQLHANDLE handle_ = SQL_NULL_HANDLE;
};

using StatementHandle = Handle<SQL_HANDLE_STMT>;
using ConnectionHandle = Handle<SQL_HANDLE_DBC>;

/// An environment set up for ODBC 3.
class Environment
{
public:
    Environment() {
        SQLSetEnvAttr(handle_.get(), SQL_ATTR_ODBC_VERSION,
                      reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3), 0);
    }
    SQLHANDLE get() const { return handle_.get(); }

private:
    Handle<SQL_HANDLE_ENV> handle_{SQL_NULL_HANDLE};
};

} // namespace velcro::sql::odbc
