// Whether this program may run: its version against the one that the common database holds.
#pragma once

#include <QString>

/// Compares gVersion with the row of vcVersions and asks the user where they differ; registers the
/// program where it has no row. Fills gSystemVersion, and gEXETitle where that is blank. False: the
/// program is to end. A failed read is shown as "900004" and thrown on.
bool sfg_CheckEXEVersion();

/// Whether the first version is the higher one, by all digits strung together. Throws
/// ConversionError for a version with anything but digits and dots.
bool isHigherVersion(const QString& version, const QString& than);

/// Raises the registered version of a program; false when that failed.
bool Update_Version(const QString& xEXEName, const QString& xEXEVersion);
