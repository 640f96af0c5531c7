// What the screens show while a message goes out.
#pragma once

/// From here on the screens paint while messages are sent; a wait for the service tells of itself
/// after half a second and ends with Escape. Until the end of the program.
void watchServiceWaits();
