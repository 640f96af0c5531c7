// A connection whose waits for the server can be watched and given up: the calls run in a thread of
// their own, and the thread that asked runs the wait hook.
#pragma once

#include "platform/sqlserver/SqlConnection.h"

namespace velcro::sql {

/// make gives the connection that does the work. Without a wait hook it is called directly. A wait
/// that was given up throws ConnectionLost; what still runs is cancelled and left to itself, and the
/// next connect() makes a connection anew.
std::unique_ptr<SqlConnection>
createWaitingConnection(std::function<std::unique_ptr<SqlConnection>()> make);

} // namespace velcro::sql
