// The folders of a seat: where programs keep what they share, and where this one may write.
#pragma once

#include <QString>
#include <QStringList>

namespace velcro::seat {

/// The two folders that programs of the suite share their settings in, in the order in which they
/// are looked at; the later one wins where both exist. On Windows "C:\Program Files" and
/// "C:\Program Files (x86)", or, where it is set, velmara below $XDG_CONFIG_HOME; elsewhere
/// /opt/velmara and velmara below the user's configuration folder ($XDG_CONFIG_HOME, else ~/.config).
QStringList programFilesRoots();

/// The program's own folder where it can be written and the program is not an installed one, else the
/// program's folder among the user's data ($XDG_DATA_HOME, else ~/.local/share), which is made and
/// closed to everybody else. Ends in a separator.
QString workingFolder(const QString& programFile);

/// Whether a setup put the program where it stands: the file "installed" lies beside it. Nothing is
/// written beside such a program, whatever its user may do there.
bool isInstalled(const QString& programFile);

/// Makes the folder, and those above it, so that its owner alone can look into it; one that is there
/// is closed to others. False when it cannot be made.
bool makePrivateFolder(const QString& path);

/// A path with "\" or "/" between its folders, with the separators of this system.
QString nativePath(const QString& path);

/// Puts other folders in the place of programFilesRoots(), for tests; empty puts the seat's back.
void setProgramFilesRoots(const QStringList& roots);

namespace system {
QStringList programFilesRoots();
QString userData();
bool canWriteIn(const QString& folder);
bool makePrivateFolder(const QString& path);
} // namespace system

} // namespace velcro::seat
