// A piece of a test that runs in a process of its own, so that it can be killed or limited.
#pragma once

#include <functional>

#include <sys/types.h>

namespace velcro::test {

class ChildProcess
{
public:
    /// work runs in the child; what it gives is the exit status. An exception ends it with 99. What
    /// is written to descriptor `report` can be read from output() here.
    explicit ChildProcess(const std::function<int(int report)>& work);
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    void kill() const;
    /// Exit status, or 128 and the number of the signal that ended it.
    int wait();
    int output() const { return output_; }

private:
    pid_t pid_ = 0;
    int output_ = -1;
};

} // namespace velcro::test
