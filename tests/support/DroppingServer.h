// Real connections whose server goes away at the call that a test names.
#pragma once

#include "data/Connection.h"

#include <memory>
#include <string>
#include <vector>

namespace velcro::test {

/// While it lives, every connection the program makes can be dropped.
class DroppingServer
{
public:
    DroppingServer();
    ~DroppingServer();
    DroppingServer(const DroppingServer&) = delete;
    DroppingServer& operator=(const DroppingServer&) = delete;

    /// The n-th call from now (1 is the next) finds the connection gone; begin, run, commit and
    /// rollback are calls. Only one is dropped.
    void dropAt(int call) { countdown = call; }
    bool dropped() const { return countdown < 0; }
    void forget() { countdown = 0; }

    int countdown = 0;  // 0: nothing drops
    int statements = 0; // that reached the server
    std::vector<std::string> texts;

private:
    Connection::Factory real_;
};

} // namespace velcro::test
