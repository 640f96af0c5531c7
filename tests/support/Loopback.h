// What the servers of tests share: a socket that listens on loopback, and waits that a test can end.
#pragma once

#include <system_error>

#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>

namespace velcro::test {

struct Listening
{
    int socket;
    int port;
};

/// On a port that nobody has. Throws std::system_error.
inline Listening listenOnLoopback() {
    const int listener = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto* plain = reinterpret_cast<sockaddr*>(&address);
    if (bind(listener, plain, size) != 0 || listen(listener, 8) != 0 ||
        getsockname(listener, plain, &size) != 0) {
        throw std::system_error(errno, std::generic_category(), "no server on loopback");
    }
    return {listener, ntohs(address.sin_port)};
}

/// Waits until there is something to read; false when the other end of the pipe was closed.
inline bool readable(int socket, int pipe) {
    pollfd waits[] = {{socket, POLLIN, 0}, {pipe, POLLIN, 0}};
    poll(waits, 2, -1);
    return waits[1].revents == 0;
}

} // namespace velcro::test
