// One blocking HTTP client over libcurl: a request goes out, its whole answer comes back.
#pragma once

#include <chrono>
#include <cstddef>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace velcro::http {

struct Header
{
    std::string name, value;
};

/// Of HTTP's Basic scheme, UTF-8; sent with the request without being asked for.
struct Credentials
{
    std::string user, password;
};

/// Whom an https address is taken for.
enum class Peer {
    Verified, // the certificate names the host, and somebody this machine trusts signed it
    Anybody,  // whoever answers
};

struct Request
{
    std::string method;  // "GET", "POST"
    std::string address; // begins with http:// or https://; see Client::send
    std::vector<Header> headers = {};
    std::string body = {};
    std::optional<Credentials> basic = {};
    std::chrono::milliseconds connectTimeOut{10'000};
    /// The longest silence of the server, and ten times as long for the whole answer.
    std::chrono::milliseconds readTimeOut{30'000};
    Peer peer = Peer::Verified;
    bool followsRedirects = false;
    std::size_t largestAnswer = std::size_t{16} * 1024 * 1024; // bytes, headers included
};

struct Answer
{
    int status = 0;     // 200
    std::string reason; // "OK"
    std::string body;
};

/// A request that got no whole answer. What came of one is kept.
class HttpError : public std::runtime_error
{
public:
    enum class Kind {
        Protocol, // what came is no HTTP, or breaks off
        Network,  // no connection, none that may be trusted, or silence
        Other,    // too large an answer, a wait given up, a request that cannot be sent
    };

    HttpError(Kind kind, const std::string& text, Answer answer = {})
        : std::runtime_error(text)
        , kind_(kind)
        , answer_(std::move(answer)) {}

    Kind kind() const { return kind_; }
    const Answer& answer() const { return answer_; }

private:
    Kind kind_;
    Answer answer_;
};

/// TLS is 1.2. Connections are kept open and shared by all clients of the process; the environment's
/// proxies do not count. Of one thread.
class Client
{
public:
    Client();
    ~Client();
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;

    /// Whatever its status, an answer is an answer. The address is sent as it stands, but for what no
    /// request line can hold: blanks, control characters, "#" and bytes above 127 go as %XX. No header
    /// is sent but those of the request, Host, Content-Length and Authorization.
    /// Runs the wait hook meanwhile. Throws HttpError.
    Answer send(const Request& request);

private:
    class Transfer;
    std::unique_ptr<Transfer> transfer_;
};

} // namespace velcro::http
