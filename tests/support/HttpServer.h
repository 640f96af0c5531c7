// A web server on loopback, plain or with TLS, that answers what a test tells it to.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace httplib {
class Server;
}

namespace velcro::test {

class HttpServer
{
public:
    struct Received
    {
        std::string method, target, body;
        std::map<std::string, std::string> headers;
    };
    struct Reply
    {
        int status = 200;
        std::string body = {};
        std::string location = {}; // of a redirect
    };
    /// Runs on the server's threads.
    using Answer = std::function<Reply(const Received& request)>;

    enum class Security {
        Plain,
        Tls,   // with a certificate that nobody signed
        Tls10, // the same, and nothing newer than TLS 1.0
    };

    explicit HttpServer(Answer answer, Security security = Security::Plain);
    ~HttpServer();
    HttpServer(const HttpServer&) = delete;
    HttpServer& operator=(const HttpServer&) = delete;

    /// "http://127.0.0.1:<port>/", or https.
    std::string address() const;
    /// All so far, in their order.
    std::vector<Received> received() const;
    /// "METHOD target body" of each.
    std::vector<std::string> lines() const;

private:
    std::string scheme_;
    std::unique_ptr<httplib::Server> server_;
    int port_ = 0;
    mutable std::mutex mutex_;
    std::vector<Received> received_;
    std::thread thread_;
};

} // namespace velcro::test
