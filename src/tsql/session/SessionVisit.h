// The one place where the kind of a statement chooses the routine that runs it.
#pragma once

#include "tsql/session/Session.h"

namespace velcro::sql::tsql {

inline Session::Flow Session::visitStatement(const Statement& statement, Place& place) {
    return std::visit([&](const auto& node) { return execute(node, place); }, statement.node);
}

/// Runs a change of the schema whole; the caller sees that nothing was counted.
template <class Work>
Session::Flow Session::define(Place& place, Work work) {
    StatementScope whole(transactions_);
    // Only now that no other connection can write is it sure which objects there are.
    catalogue_.refresh();
    work();
    whole.done();
    report(place, -1);
    return Flow::Normal;
}

} // namespace velcro::sql::tsql
