// Where a numbered fault waits while SQLite, which passes only text, tells of it.
#pragma once

#include "tsql/values/Errors.h"

#include <optional>
#include <utility>

namespace velcro::sql::tsql {

class FaultSlot
{
public:
    /// The fault that made the last sqlite3_step() fail, if a function raised it; forgets it.
    std::optional<Fault> takeFault() { return std::exchange(fault_, std::nullopt); }
    /// The first one is the cause, so that a second one is dropped.
    void setFault(Fault fault) {
        if (!fault_) {
            fault_.emplace(std::move(fault));
        }
    }

private:
    std::optional<Fault> fault_;
};

} // namespace velcro::sql::tsql
