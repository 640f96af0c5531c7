// A disk that is full as far as this process can tell.
#pragma once

#include <cstdint>

#ifdef _WIN32
#include <sqlite3.h>
#include <windows.h>
#else
#include <csignal>
#include <sys/resource.h>
#endif

namespace velcro::test {

#ifdef _WIN32

/// While it lives, no database of this process grows beyond so many bytes.
class FullDisk
{
public:
    explicit FullDisk(std::int64_t bytes) {
        limit = bytes;
        auto* system = sqlite3_vfs_find("win32");
        real = reinterpret_cast<Write>(system->xGetSystemCall(system, "WriteFile"));
        system->xSetSystemCall(system, "WriteFile", reinterpret_cast<sqlite3_syscall_ptr>(&write));
    }
    ~FullDisk() {
        auto* system = sqlite3_vfs_find("win32");
        system->xSetSystemCall(system, "WriteFile", nullptr);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

    /// How a server's words for it begin.
    static constexpr const char* told = "The transaction log for database ";

private:
    using Write = BOOL(WINAPI*)(HANDLE, LPCVOID, DWORD, LPDWORD, LPOVERLAPPED);

    static BOOL WINAPI write(HANDLE file, LPCVOID bytes, DWORD count, LPDWORD written,
                             LPOVERLAPPED place) {
        LARGE_INTEGER at{};
        if (place != nullptr) {
            at.LowPart = place->Offset;
            at.HighPart = static_cast<LONG>(place->OffsetHigh);
        } else {
            SetFilePointerEx(file, {}, &at, FILE_CURRENT);
        }
        if (at.QuadPart + count > limit) {
            SetLastError(ERROR_DISK_FULL);
            return FALSE;
        }
        return real(file, bytes, count, written, place);
    }

    static inline std::int64_t limit = 0;
    static inline Write real = nullptr;
};

#else

/// While it lives, no file of this process grows beyond so many bytes.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
        : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

    /// How a server's words for it begin: a limit of the process is no full disk to the system.
    static constexpr const char* told = "The operating system returned an error";

private:
    void (*handler_)(int);
    rlimit before_{};
};

#endif

} // namespace velcro::test
