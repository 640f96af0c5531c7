// Keeps the till database's schema at the version that the program requires.
#pragma once

#include <QString>

/// The schema version this build requires.
inline const QString requiredTillDBVersion = QStringLiteral("14.47.41");

/// Reads this workstation's row of SYSTillControl into gLocalDBVersion, or makes the row. A failure
/// is shown as "900004" and thrown on.
void tb_Check_Till_DBVersion();

/// True when gTillDBVersion sorts above gLocalDBVersion, as plain text.
bool tillSchemaIsBehind();

/// Brings the schema to gTillDBVersion and records it for this workstation. The sweep is not there
/// yet, so nothing is changed and nothing recorded: a version on record would keep a later build
/// from sweeping.
void tb_Upgrade();
