// The rights of somebody who is not the administrator, for tests that are run by one.
#pragma once

#ifdef _WIN32
#include <process.h>
#else
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace velcro::test {

#ifdef _WIN32

/// Files that are marked read-only are read-only for administrators too.
class OrdinaryUser
{
public:
    OrdinaryUser() = default;
    ~OrdinaryUser() {}
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;
    static bool works() { return true; }
    static bool isNeeded() { return false; }
};

struct OpenFiles
{
    ~OpenFiles() {}
};

#else

/// While it lives, the process has no more rights on files than an ordinary user has.
class OrdinaryUser
{
public:
    OrdinaryUser()
        : before_(geteuid())
        , works_(before_ != 0 || seteuid(nobody) == 0) {}
    ~OrdinaryUser() {
        if (geteuid() != before_ && seteuid(before_) != 0) {
            _exit(1); // the tests that follow would mean nothing
        }
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

    bool works() const { return works_; }
    /// Whether the tests are run by somebody who may do everything.
    static bool isNeeded() { return geteuid() == 0; }

    static constexpr uid_t nobody = 65534;

private:
    uid_t before_;
    bool works_;
};

/// While it lives, new files are open to others unless their maker says otherwise.
class OpenFiles
{
public:
    OpenFiles()
        : before_(umask(0022)) {}
    ~OpenFiles() { umask(before_); }
    OpenFiles(const OpenFiles&) = delete;
    OpenFiles& operator=(const OpenFiles&) = delete;

private:
    mode_t before_;
};

#endif

} // namespace velcro::test
