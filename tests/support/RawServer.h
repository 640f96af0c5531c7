// A server on loopback that keeps the very bytes of a request and answers with bytes of the test's:
// whole answers, halves, none, and more than anybody wants.
#pragma once

#include "support/Sockets.h"

#include <cstdint>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace velcro::test {

class RawServer
{
public:
    struct Reply
    {
        enum Then {
            Wait,  // for the next request on this connection
            Cut,   // the connection
            Stall, // until the client goes
        };
        std::string bytes = {};
        Then then = Cut;
        std::uint64_t filling = 0; // so many letters more, unless the client goes first
        int pause = 0;             // milliseconds before each of these letters
    };
    /// Of the n-th request, from 1. Runs on the server's thread.
    using Answer = std::function<Reply(int n)>;

    explicit RawServer(Answer answer);
    ~RawServer();
    RawServer(const RawServer&) = delete;
    RawServer& operator=(const RawServer&) = delete;

    /// "http://127.0.0.1:<port>/"
    std::string address() const { return "http://" + host() + "/"; }
    std::string host() const { return "127.0.0.1:" + std::to_string(port_); }
    /// The bytes of all requests so far.
    std::vector<std::string> requests() const;
    int connections() const;

    /// A whole answer of that status line.
    static std::string whole(const std::string& body, const std::string& status = "200 OK");

private:
    void serve();
    void serveClient(int client);
    std::string readRequest(int client) const;
    void sendReply(int client, const Reply& reply) const;

    Answer answer_;
    mutable std::mutex mutex_;
    std::vector<std::string> requests_;
    int connections_ = 0;
    int listener_ = -1;
    Bell bell_;
    int port_ = 0;
    std::thread thread_;
};

} // namespace velcro::test
