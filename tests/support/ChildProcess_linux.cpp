#include "support/ChildProcess.h"

#include <csignal>
#include <stdexcept>

#include <sys/wait.h>
#include <unistd.h>

namespace velcro::test {

bool Report::tell(const void* bytes, std::size_t size) const {
    return write(static_cast<int>(to_), bytes, size) == static_cast<ssize_t>(size);
}

void Report::wait() {
    for (;;) {
        pause();
    }
}

ChildProcess::ChildProcess(const ChildWork& work, const ChildWork::Arguments& arguments) {
    int ends[2];
    if (pipe(ends) != 0) {
        throw std::runtime_error("no pipe");
    }
    process_ = fork();
    if (process_ == 0) {
        ::close(ends[0]);
        _exit(work.run(arguments, Report(ends[1])));
    }
    ::close(ends[1]);
    output_ = ends[0];
}

void ChildProcess::kill() const {
    ::kill(static_cast<pid_t>(process_), SIGKILL);
}

void ChildProcess::killOneself() {
    std::raise(SIGKILL);
    Report::wait();
}

int ChildProcess::wait() {
    int status = 0;
    waitpid(static_cast<pid_t>(process_), &status, 0);
    process_ = 0;
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

void ChildProcess::close() const {
    ::close(static_cast<int>(output_));
}

bool ChildProcess::read(void* bytes, std::size_t size) const {
    auto* to = static_cast<char*>(bytes);
    while (size > 0) {
        const auto count = ::read(static_cast<int>(output_), to, size);
        if (count <= 0) {
            return false;
        }
        to += count;
        size -= static_cast<std::size_t>(count);
    }
    return true;
}

} // namespace velcro::test
