// Ctrl-C, noticed beside the statement that runs.
#pragma once

#include <functional>
#include <memory>

namespace velcro::velsql {

/// While it lives, Ctrl-C calls cancel on a thread of its own, again and again, since it may come a
/// moment before the statement does. Where cancel gives false at once, and at the second Ctrl-C, the
/// process ends. Where Ctrl-C was ignored before, it stays so.
class Interrupt
{
public:
    explicit Interrupt(std::function<bool()> cancel);
    ~Interrupt();
    Interrupt(const Interrupt&) = delete;
    Interrupt& operator=(const Interrupt&) = delete;

private:
    struct Watch;
    std::unique_ptr<Watch> watch_;
};

} // namespace velcro::velsql
