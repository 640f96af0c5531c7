// The rights of somebody who is not the administrator, for tests that are run by one.
#pragma once

#include <unistd.h>

namespace velcro::test {

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

    static constexpr uid_t nobody = 65534;

private:
    uid_t before_;
    bool works_;
};

} // namespace velcro::test
