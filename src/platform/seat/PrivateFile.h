// Small files that a program writes for itself beside its own: never through a link that somebody
// else put in their place, and for no other eyes.
#pragma once

#include <QByteArray>
#include <QString>

namespace velcro::seat {

/// Replaces the file in one step, readable and writable by its owner alone; a link in its place is
/// replaced, not followed. False, with the old file as it was, when that fails; the reason, where one
/// is wanted, is the system's.
bool replaceFile(const QString& path, const QByteArray& bytes, QString* reason = nullptr);

} // namespace velcro::seat
