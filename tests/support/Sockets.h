// Sockets as both systems have them, under the names of POSIX, and a bell that ends a wait on them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <system_error>

#ifdef _WIN32
#include <winsock2.h>
#include <ws2tcpip.h>
#else
#include <arpa/inet.h>
#include <cerrno>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>
#endif

namespace velcro::test {

[[noreturn]] inline void failSocket(const char* what) {
#ifdef _WIN32
    throw std::system_error(WSAGetLastError(), std::system_category(), what);
#else
    throw std::system_error(errno, std::generic_category(), what);
#endif
}

#ifdef _WIN32

constexpr int sendFlags = 0;

inline int openSocket() {
    static const int started = [] {
        WSADATA data{};
        return WSAStartup(MAKEWORD(2, 2), &data);
    }();
    if (started != 0) {
        failSocket("no sockets");
    }
    return static_cast<int>(::socket(AF_INET, SOCK_STREAM, 0));
}
inline void closeSocket(int socket) {
    closesocket(static_cast<SOCKET>(socket));
}
inline pollfd toRead(int socket) {
    return {static_cast<SOCKET>(socket), POLLIN, 0};
}
inline int waitFor(pollfd* waits, std::size_t count, int milliseconds) {
    return WSAPoll(waits, static_cast<ULONG>(count), milliseconds);
}

#else

constexpr int sendFlags = MSG_NOSIGNAL;

inline int openSocket() {
    return ::socket(AF_INET, SOCK_STREAM, 0);
}
inline void closeSocket(int socket) {
    close(socket);
}
inline pollfd toRead(int socket) {
    return {socket, POLLIN, 0};
}
inline int waitFor(pollfd* waits, std::size_t count, int milliseconds) {
    return poll(waits, count, milliseconds);
}

#endif

struct Listening
{
    int socket;
    int port;
};

/// On a port that nobody has. Throws std::system_error.
inline Listening listenOnLoopback() {
    const int listener = openSocket();
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto* plain = reinterpret_cast<sockaddr*>(&address);
    if (bind(listener, plain, size) != 0 || listen(listener, 8) != 0 ||
        getsockname(listener, plain, &size) != 0) {
        failSocket("no server on loopback");
    }
    return {listener, ntohs(address.sin_port)};
}

/// Ends waits: a connection of the process with itself, since not every system waits on pipes too.
class Bell
{
public:
    Bell() {
        const auto [listener, port] = listenOnLoopback();
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        address.sin_port = htons(static_cast<std::uint16_t>(port));
        cord_ = openSocket();
        if (connect(cord_, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0) {
            failSocket("no bell");
        }
        clapper_ = static_cast<int>(accept(listener, nullptr, nullptr));
        closeSocket(listener);
    }
    ~Bell() {
        end();
        closeSocket(clapper_);
    }
    Bell(const Bell&) = delete;
    Bell& operator=(const Bell&) = delete;

    /// What a wait waits for.
    int socket() const { return clapper_; }
    void ring() const { ::send(cord_, "!", 1, sendFlags); }
    void hush() const {
        char once = 0;
        recv(clapper_, &once, 1, 0);
    }
    /// Rings for good.
    void end() {
        if (cord_ >= 0) {
            closeSocket(cord_);
            cord_ = -1;
        }
    }

private:
    int cord_ = -1;
    int clapper_ = -1;
};

/// Waits until there is something to read; false once the bell rings.
inline bool readable(int socket, const Bell& bell) {
    pollfd waits[] = {toRead(socket), toRead(bell.socket())};
    waitFor(waits, 2, -1);
    return waits[1].revents == 0;
}

} // namespace velcro::test
