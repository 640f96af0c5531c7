// Procedures that whoever opens a session brings along: to EXEC they look like the database's own,
// but they are C++.
#pragma once

#include "tsql/values/RowSet.h"
#include "tsql/values/Values.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace velcro::sql::tsql {

struct NativeParameter
{
    std::string_view name; // with its @
    Type type;
};

/// What a native procedure may ask of the session that calls it. Everything throws Fault.
class NativeCaller
{
public:
    virtual const std::filesystem::path& databaseFile() const = 0;
    /// True when what the session writes waits for a commit.
    virtual bool inTransaction() const = 0;

    /// The first row set of T-SQL text that runs in the session; the arguments of the call are its
    /// variables. Only from run().
    virtual RowSet query(std::string_view text) = 0;

    /// A number that the database keeps under a name no statement sees, 0 at first. It belongs to
    /// the session's transaction like any row. Names differ by case.
    virtual std::int64_t highest(std::string_view name) = 0;
    /// Keeps the number unless a higher one is kept already.
    virtual void keepHighest(std::string_view name, std::int64_t number) = 0;

protected:
    ~NativeCaller() = default;
};

/// One for each session. A procedure of the database itself that has the same name goes before.
class NativeProcedure
{
public:
    virtual ~NativeProcedure() = default;

    virtual std::string_view name() const = 0;
    /// In the order of arguments without a name; none may be left out (201).
    virtual std::span<const NativeParameter> parameters() const = 0;
    /// Gives the rows of the call. There is a value for each parameter, converted to its type.
    virtual RowSet run(std::span<const Value> arguments, NativeCaller& caller) = 0;

    /// Before a transaction that has written is committed, as its last work. What it throws keeps
    /// the transaction from being committed.
    virtual void beforeCommit(NativeCaller& caller) = 0;
    /// After a transaction: `written` when beforeCommit() was called and all is durable now.
    virtual void afterTransaction(bool written) noexcept = 0;
};

using NativeProcedures = std::vector<std::unique_ptr<NativeProcedure>>;

} // namespace velcro::sql::tsql
