#include "platform/sqlserver/odbc/DriverChoice.h"

namespace velcro::sql::odbc {

// Installers register their drivers there; a library without an entry cannot be connected with.
std::optional<std::string> findFreeTdsLibrary() {
    return std::nullopt;
}

} // namespace velcro::sql::odbc
