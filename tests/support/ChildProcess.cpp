#include "support/ChildProcess.h"

#include <exception>

namespace velcro::test {

int ChildWork::run(const Arguments& arguments, const Report& report) const {
    constexpr int failedByException = 99;
    try {
        return work_(arguments, report);
    } catch (const std::exception&) {
        return failedByException;
    }
}

ChildProcess::~ChildProcess() {
    if (process_ != 0) {
        kill();
        wait();
    }
    close();
}

} // namespace velcro::test
