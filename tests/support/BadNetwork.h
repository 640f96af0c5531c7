// A network on loopback between the program and a TDS server, as bad as a test wants it: it delays,
// cuts and stalls.
#pragma once

#include "support/Sockets.h"

#include <chrono>
#include <condition_variable>
#include <list>
#include <mutex>
#include <string>
#include <thread>

namespace velcro::test {

class BadNetwork
{
public:
    /// server is "host,port" of an IPv4 address.
    explicit BadNetwork(const std::string& server);
    ~BadNetwork();
    BadNetwork(const BadNetwork&) = delete;
    BadNetwork& operator=(const BadNetwork&) = delete;

    /// "127.0.0.1,<port>"
    std::string address() const;

    /// What is sent from now on arrives this much later, in each direction.
    void delay(std::chrono::milliseconds oneWay);
    /// The n-th request from now (1 is the next) never arrives: the connection is cut.
    void cutAtRequest(int n);
    /// The n-th request from now arrives; its answer doesn't: the connection is cut.
    void cutAtAnswer(int n);
    /// Nothing arrives any more, and the connections stay, until all of them are cut.
    void stall();
    void cut();

    /// Requests of all connections that came here so far, log-ins included.
    int requests() const;
    /// Waits until that many came.
    void waitForRequests(int count);

private:
    struct Link;
    struct Waiting;
    enum class Fault { None, Request, Answer };

    void serve();
    void acceptLink();
    void read(Link& link, bool fromClient);
    bool countRequests(Link& link, const std::string& bytes);
    int forwardDue();

    mutable std::mutex mutex_;
    std::condition_variable came_;
    std::list<Link> links_;
    std::chrono::milliseconds delay_{0};
    Fault fault_ = Fault::None;
    int faultIn_ = 0;
    int requests_ = 0;
    bool stalled_ = false;
    bool over_ = false;

    std::string host_;
    int serverPort_ = 0;
    int listener_ = -1;
    Bell bell_;
    int port_ = 0;
    std::thread thread_;
};

} // namespace velcro::test
