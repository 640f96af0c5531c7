// The session file: what a till remembers of its last session, one file a company and branch.
#pragma once

#include <QString>

/// Session/velSSN-<gSessionKEY>.ini below gEXEPath.
QString sessionFileName();
/// Writes one key of this program's section and keeps the others. A file that cannot be written
/// is told on the error output: signing in must not fail for it.
void sfg_WriteSession_INIFile(const QString& xKeyName, const QString& xValue);
/// Blank when the key or the file is missing.
QString sfg_ReadSession_INIFile(const QString& xKeyName);
