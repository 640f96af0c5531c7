// The machine configuration file: where the databases are, and what is attached to this seat.
#pragma once

#include <QString>

/// Reads it into the session values and derives the connectors and gSessionKEY. False, with the
/// reason in gErrorMsg and nothing read, when the file or one of its folders is missing, cannot be
/// read or is no configuration file.
bool sfg_ReadSysReg();

/// Path of the file below the program-files root that counts; blank, with the reason in gErrorMsg,
/// when it or one of its folders is missing.
QString machineConfigurationFile();
