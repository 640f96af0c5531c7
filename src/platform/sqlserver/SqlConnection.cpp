#include "platform/sqlserver/SqlConnection.h"

#include "platform/sqlserver/EmbeddedConnection.h"
#include "platform/sqlserver/WaitingConnection.h"
#include "platform/sqlserver/odbc/OdbcConnection.h"

namespace velcro::sql {

std::unique_ptr<SqlConnection> createConnection(std::string_view server) {
    return server.starts_with(embeddedPrefix) ? createEmbeddedConnection()
                                              : createWaitingConnection(createOdbcConnection);
}

} // namespace velcro::sql
