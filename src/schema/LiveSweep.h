// Keeps the window alive while a sweep runs in a click.
#pragma once

#include <QElapsedTimer>

namespace velcro::schema {

/// While it lives the window is painted between the statements, at once and then every tenth of a
/// second. Keys and clicks wait for the screen that is meant to get them.
class LiveSweep
{
public:
    LiveSweep();
    ~LiveSweep();
    LiveSweep(const LiveSweep&) = delete;
    LiveSweep& operator=(const LiveSweep&) = delete;

private:
    void tick();

    QElapsedTimer sincePainted_;
};

} // namespace velcro::schema
