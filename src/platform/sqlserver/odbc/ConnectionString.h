// The text that names a database to a driver, made from settings instead of a data source name.
#pragma once

#include "platform/sqlserver/SqlConnection.h"
#include "platform/sqlserver/odbc/DriverChoice.h"

#include <string>
#include <string_view>

namespace velcro::sql::odbc {

/// What a server value begins with that is itself a driver's connection string; database, user and
/// password are added to it. For drivers and options that the settings have no field for; honoured
/// where the settings allow it only, since it loads whatever library it names.
inline constexpr std::string_view explicitPrefix = "odbc:";

/// A server as it was written: host; host,port; host\instance; each with or without "tcp:" before.
struct ServerName
{
    std::string host; // "." and "(local)" are this machine
    std::string instance;
    std::string port;
};
ServerName parseServer(std::string_view server);

/// driver does not count where the server value is explicit.
std::string connectionString(const ConnectionSettings& settings, const Driver& driver);

} // namespace velcro::sql::odbc
