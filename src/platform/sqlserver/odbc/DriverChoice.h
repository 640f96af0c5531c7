// Which of the installed ODBC drivers to use for SQL Server.
#pragma once

#include "platform/sqlserver/odbc/OdbcApi.h"

#include <optional>
#include <string>
#include <vector>

namespace velcro::sql::odbc {

enum class DriverKind {
    Vendor, // "ODBC Driver NN for SQL Server", "SQL Server Native Client NN"
    FreeTds,
    Other, // named by the caller
};

struct Driver
{
    std::string name; // as registered, or the path of its library
    DriverKind kind = DriverKind::Other;
};

/// The registered drivers' names.
std::vector<std::string> installedDrivers(SQLHANDLE environment);

/// The vendor's newest, else its older client, else FreeTDS.
std::optional<Driver> chooseDriver(const std::vector<std::string>& names);

/// Path of FreeTDS's library where it was installed but never registered.
std::optional<std::string> findFreeTdsLibrary();

/// What the file name of a connected driver's library tells.
DriverKind kindOfLibrary(std::string fileName);

} // namespace velcro::sql::odbc
