// Control settings of the suite, kept in the common database.
#pragma once

#include <QString>

/// Reads vcControl: true with details, connector, user and password in gSParam1 to 4. All return
/// slots are cleared first. Throws SqlError.
bool slc_GetControlSettings(const QString& xCode);
