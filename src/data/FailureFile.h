// The file that keeps the last failed statement of a database.
#pragma once

#include <QString>

/// Writes the text over the file; name is a path with "\" or "/" between folders, which are made
/// when missing; a link in its place is replaced. Readable by its owner alone, since statements hold
/// business data. A file that cannot be written is told on the error output: the failure itself must
/// still reach the user.
void writeFailureFile(const QString& name, const QString& text);
