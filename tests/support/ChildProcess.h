// A piece of a test in a process of its own.
#pragma once

#include "support/ChildWork.h"

namespace velcro::test {

class ChildProcess
{
public:
    explicit ChildProcess(const ChildWork& work, const ChildWork::Arguments& arguments = {});
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    /// What wait() gives for a process that was killed, from here or by itself.
    static constexpr int killed = 128 + 9;
    void kill() const;
    [[noreturn]] static void killOneself();
    /// Exit status, or killed.
    int wait();

    /// Waits for so many bytes of what the child reports; false when it ended before.
    bool read(void* bytes, std::size_t size) const;

private:
    void close() const;

    std::intptr_t process_ = 0;
    std::intptr_t output_ = -1;
};

} // namespace velcro::test
