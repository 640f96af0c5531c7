// The values of a statement's markers, held where the driver reads them.
#pragma once

#include "platform/sqlserver/odbc/DriverChoice.h"
#include "platform/sqlserver/odbc/StatementText.h"

#include <deque>

namespace velcro::sql::odbc {

/// Lives as long as the statement runs.
class BoundParameters
{
public:
    /// SQL_ERROR where the driver refuses one of them; its diagnostics are then on the statement.
    SQLRETURN bind(SQLHANDLE statement, const std::vector<const Parameter*>& markers,
                   DriverKind kind);

private:
    struct Slot
    {
        std::u16string text;
        SQLBIGINT integer = 0;
        double number = 0;
        SQLLEN length = 0;
    };

    SQLRETURN bindText(SQLHANDLE statement, SQLUSMALLINT index, Slot& slot, DriverKind kind);
    SQLRETURN bindBlob(SQLHANDLE statement, SQLUSMALLINT index, Slot& slot,
                       const std::string& bytes, DriverKind kind);

    std::deque<Slot> slots_; // addresses given to the driver stay
};

} // namespace velcro::sql::odbc
