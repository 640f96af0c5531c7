// Pieces of tests that run in processes of their own, so that they can be killed or limited. Where a
// process cannot be split in two, as on Windows, the test's program is started again and finds the
// piece by its name.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace velcro::test {

/// The child's line to the test.
class Report
{
public:
    explicit Report(std::intptr_t to)
        : to_(to) {}
    /// False once nobody listens.
    bool tell(const void* bytes, std::size_t size) const;
    /// Tells nothing any more, until the process is killed.
    [[noreturn]] static void wait();

private:
    std::intptr_t to_;
};

/// Stands at the top of a test file. What the work gives is the exit status; an exception ends the
/// process with 99.
class ChildWork
{
public:
    using Arguments = std::vector<std::string>;
    using Function = int (*)(const Arguments& arguments, const Report& report);

    ChildWork(std::string name, Function work)
        : name_(std::move(name))
        , work_(work) {
        all()[name_] = this;
    }
    const std::string& name() const { return name_; }
    int run(const Arguments& arguments, const Report& report) const;

    static std::map<std::string, const ChildWork*>& all() {
        static std::map<std::string, const ChildWork*> works;
        return works;
    }

private:
    std::string name_;
    Function work_;
};

/// Set where programs are started again for a piece: runs the one that the environment tells of, and
/// gives its status.
inline int (*runAsChild)(const std::string& told) = nullptr;

} // namespace velcro::test
