#include "support/RawServer.h"

#include "support/Sockets.h"

#include <algorithm>

namespace velcro::test {

namespace {

/// Of the body, as the headers tell; 0 where they do not.
std::size_t lengthOf(const std::string& headers) {
    const auto at = headers.find("Content-Length: ");
    return at == std::string::npos ? 0 : std::stoul(headers.substr(at + 16));
}

bool sendAll(int client, std::string_view bytes) {
    while (!bytes.empty()) {
        const auto sent = ::send(client, bytes.data(), bytes.size(), sendFlags);
        if (sent <= 0) {
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(sent));
    }
    return true;
}

} // namespace

RawServer::RawServer(Answer answer)
    : answer_(std::move(answer)) {
    const auto [socket, port] = listenOnLoopback();
    listener_ = socket;
    port_ = port;
    thread_ = std::thread([this] { serve(); });
}

RawServer::~RawServer() {
    bell_.end();
    thread_.join();
    closeSocket(listener_);
}

std::vector<std::string> RawServer::requests() const {
    const std::lock_guard lock(mutex_);
    return requests_;
}

int RawServer::connections() const {
    const std::lock_guard lock(mutex_);
    return connections_;
}

std::string RawServer::whole(const std::string& body, const std::string& status) {
    return "HTTP/1.1 " + status + "\r\nContent-Length: " + std::to_string(body.size()) +
           "\r\n\r\n" + body;
}

void RawServer::serve() {
    while (readable(listener_, bell_)) {
        const int client = static_cast<int>(accept(listener_, nullptr, nullptr));
        {
            const std::lock_guard lock(mutex_);
            ++connections_;
        }
        serveClient(client);
        closeSocket(client);
    }
}

void RawServer::serveClient(int client) {
    for (;;) {
        const std::string request = readRequest(client);
        if (request.empty()) {
            return;
        }
        int n = 0;
        {
            const std::lock_guard lock(mutex_);
            requests_.push_back(request);
            n = static_cast<int>(requests_.size());
        }
        const Reply reply = answer_(n);
        sendReply(client, reply);
        if (reply.then == Reply::Cut) {
            return;
        }
        if (reply.then == Reply::Stall) {
            readable(client, bell_); // its end, or the test's
            return;
        }
    }
}

/// Blank when the client went or the test is over.
std::string RawServer::readRequest(int client) const {
    std::string bytes;
    char buffer[4096];
    for (;;) {
        const auto end = bytes.find("\r\n\r\n");
        if (end != std::string::npos && bytes.size() >= end + 4 + lengthOf(bytes.substr(0, end))) {
            return bytes;
        }
        const auto count = readable(client, bell_) ? recv(client, buffer, sizeof buffer, 0) : 0;
        if (count <= 0) {
            return {};
        }
        bytes.append(buffer, static_cast<std::size_t>(count));
    }
}

void RawServer::sendReply(int client, const Reply& reply) const {
    sendAll(client, reply.bytes);
    const std::string part(reply.pause > 0 ? 1 : 64 * 1024, 'x');
    for (auto left = reply.filling; left > 0;) {
        const auto size = std::min<std::uint64_t>(left, part.size());
        pollfd over = toRead(bell_.socket());
        if (waitFor(&over, 1, reply.pause) != 0 ||
            !sendAll(client, std::string_view(part).substr(0, size))) {
            return;
        }
        left -= size;
    }
}

} // namespace velcro::test
