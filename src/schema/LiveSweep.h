// Keeps the window alive while a sweep runs in a click.
#pragma once

#include <QElapsedTimer>

#include <functional>

namespace velcro::schema {

/// While it lives the window is painted between the statements, at once and then every tenth of a
/// second, by the pump it is given.
class LiveSweep
{
public:
    explicit LiveSweep(std::function<void()> paint);
    ~LiveSweep();
    LiveSweep(const LiveSweep&) = delete;
    LiveSweep& operator=(const LiveSweep&) = delete;

private:
    void tick();

    std::function<void()> paint_;
    QElapsedTimer sincePainted_;
};

} // namespace velcro::schema
