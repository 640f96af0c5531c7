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

/// Brings a till database of any age, or an empty one, to this version's schema: what is there is
/// left alone, what is missing is made. Statements that fail are passed over; an exception ends the
/// sweep, and the next one begins it again.
void tb_Upgrade();

/// Makes the indexes that are missing by name. Always true.
bool tb_Indexing();

/// Records the version, and today, in this workstation's row of SYSTillControl.
void tb_Update_TillDBVersion(const QString& xVersion);

/// Reads the suite database's version (SYSDBConfig) into gDBVersion. Always true.
bool tb_CheckDBVersions();
