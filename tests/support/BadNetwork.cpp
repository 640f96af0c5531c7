#include "support/BadNetwork.h"

#include "support/Sockets.h"

#include <deque>
#include <vector>

namespace velcro::test {

using Clock = std::chrono::steady_clock;

namespace {

sockaddr_in addressOf(const std::string& host, int port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    inet_pton(AF_INET, host.c_str(), &address.sin_addr);
    return address;
}

} // namespace

/// Bytes on their way.
struct BadNetwork::Waiting
{
    Clock::time_point due;
    bool fromClient;
    std::string bytes;
};

struct BadNetwork::Link
{
    int client = -1;
    int server = -1;
    std::deque<Waiting> onTheirWay = {};
    std::string unread = {}; // of the client's, behind the last whole packet
    bool losesAnswer = false;
    bool broken = false;

    int end(bool ofClient) const { return ofClient ? client : server; }
};

BadNetwork::BadNetwork(const std::string& server)
    : host_(server.substr(0, server.find(',')))
    , serverPort_(std::stoi(server.substr(server.find(',') + 1))) {
    const auto [socket, port] = listenOnLoopback();
    listener_ = socket;
    port_ = port;
    thread_ = std::thread([this] { serve(); });
}

BadNetwork::~BadNetwork() {
    {
        const std::lock_guard lock(mutex_);
        over_ = true;
    }
    bell_.ring();
    thread_.join();
    closeSocket(listener_);
}

std::string BadNetwork::address() const {
    return "127.0.0.1," + std::to_string(port_);
}

void BadNetwork::delay(std::chrono::milliseconds oneWay) {
    const std::lock_guard lock(mutex_);
    delay_ = oneWay;
}

void BadNetwork::cutAtRequest(int n) {
    const std::lock_guard lock(mutex_);
    fault_ = Fault::Request;
    faultIn_ = n;
}

void BadNetwork::cutAtAnswer(int n) {
    const std::lock_guard lock(mutex_);
    fault_ = Fault::Answer;
    faultIn_ = n;
}

void BadNetwork::stall() {
    const std::lock_guard lock(mutex_);
    stalled_ = true;
}

void BadNetwork::cut() {
    {
        const std::lock_guard lock(mutex_);
        stalled_ = false;
        for (auto& link : links_) {
            link.broken = true;
        }
    }
    bell_.ring();
}

int BadNetwork::requests() const {
    const std::lock_guard lock(mutex_);
    return requests_;
}

void BadNetwork::waitForRequests(int count) {
    std::unique_lock lock(mutex_);
    came_.wait(lock, [&] { return requests_ >= count; });
}

void BadNetwork::acceptLink() {
    const int client = static_cast<int>(accept(listener_, nullptr, nullptr));
    const int server = openSocket();
    auto address = addressOf(host_, serverPort_);
    const bool reached =
        connect(server, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
    links_.push_back({.client = client, .server = server, .broken = !reached});
}

/// A request is a row of packets whose last one is marked. False where this one is to be lost.
bool BadNetwork::countRequests(Link& link, const std::string& bytes) {
    constexpr std::size_t headerSize = 8;
    bool arrives = true;
    link.unread += bytes;
    while (link.unread.size() >= headerSize) {
        const auto at = [&](std::size_t i) { return static_cast<unsigned char>(link.unread[i]); };
        const std::size_t length = at(2) * 256U + at(3);
        if (link.unread.size() < length || length < headerSize) {
            break;
        }
        const bool last = (at(1) & 1U) != 0;
        link.unread.erase(0, length);
        if (!last) {
            continue;
        }
        ++requests_;
        if (faultIn_ > 0 && --faultIn_ == 0) {
            arrives = fault_ != Fault::Request;
            link.losesAnswer = fault_ == Fault::Answer;
        }
    }
    came_.notify_all();
    return arrives;
}

void BadNetwork::read(Link& link, bool fromClient) {
    std::string bytes(64 * 1024, '\0');
    const auto count = recv(link.end(fromClient), bytes.data(), bytes.size(), 0);
    bytes.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
    const bool arrives = fromClient ? countRequests(link, bytes) : !link.losesAnswer;
    if (bytes.empty() || !arrives) {
        link.broken = true;
    } else if (!stalled_) {
        link.onTheirWay.push_back({Clock::now() + delay_, fromClient, std::move(bytes)});
    }
}

/// Milliseconds until the next bytes are due; -1 when none are on their way.
int BadNetwork::forwardDue() {
    const auto now = Clock::now();
    auto wait = std::chrono::milliseconds(-1);
    for (auto& link : links_) {
        while (!link.onTheirWay.empty() && link.onTheirWay.front().due <= now) {
            const auto& [due, fromClient, bytes] = link.onTheirWay.front();
            ::send(link.end(!fromClient), bytes.data(), bytes.size(), sendFlags);
            link.onTheirWay.pop_front();
        }
        if (!link.onTheirWay.empty()) {
            const auto left =
                std::chrono::ceil<std::chrono::milliseconds>(link.onTheirWay.front().due - now);
            wait = wait.count() < 0 ? left : std::min(wait, left);
        }
    }
    return static_cast<int>(wait.count());
}

void BadNetwork::serve() {
    std::unique_lock lock(mutex_);
    while (!over_) {
        std::vector<pollfd> waits = {toRead(listener_), toRead(bell_.socket())};
        for (const auto& link : links_) {
            waits.push_back(toRead(link.client));
            waits.push_back(toRead(link.server));
        }
        const int wait = forwardDue();
        lock.unlock();
        waitFor(waits.data(), waits.size(), wait);
        lock.lock();
        std::size_t at = 2;
        for (auto& link : links_) {
            for (const bool fromClient : {true, false}) {
                if (waits[at++].revents != 0 && !link.broken) {
                    read(link, fromClient);
                }
            }
        }
        if (waits[0].revents != 0) {
            acceptLink();
        }
        if (waits[1].revents != 0) {
            bell_.hush();
        }
        links_.remove_if([this](const Link& link) {
            if (link.broken || over_) {
                closeSocket(link.client);
                closeSocket(link.server);
            }
            return link.broken || over_;
        });
    }
}

} // namespace velcro::test
