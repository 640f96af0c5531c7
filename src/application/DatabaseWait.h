// What the screens show while a database lets the program wait, and how the user gives up.
#pragma once

/// From here on every wait for a server or for a lock paints, tells of itself after half a second,
/// and ends with Escape. Until the end of the program.
void watchDatabaseWaits();
