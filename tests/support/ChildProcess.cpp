#include "support/ChildProcess.h"

#include <csignal>
#include <exception>
#include <stdexcept>

#include <sys/wait.h>
#include <unistd.h>

namespace velcro::test {

namespace {

constexpr int failedByException = 99;

} // namespace

ChildProcess::ChildProcess(const std::function<int(int)>& work) {
    int ends[2];
    if (pipe(ends) != 0) {
        throw std::runtime_error("no pipe");
    }
    pid_ = fork();
    if (pid_ == 0) {
        close(ends[0]);
        int status = failedByException;
        try {
            status = work(ends[1]);
        } catch (const std::exception&) {
            status = failedByException;
        }
        _exit(status);
    }
    close(ends[1]);
    output_ = ends[0];
}

ChildProcess::~ChildProcess() {
    if (pid_ > 0) {
        kill();
        wait();
    }
    close(output_);
}

void ChildProcess::kill() const {
    ::kill(pid_, SIGKILL);
}

int ChildProcess::wait() {
    int status = 0;
    waitpid(pid_, &status, 0);
    pid_ = 0;
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

} // namespace velcro::test
