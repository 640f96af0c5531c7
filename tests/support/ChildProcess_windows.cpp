#include "support/ChildProcess.h"

#include <cstdlib>
#include <stdexcept>

#include <windows.h>

namespace velcro::test {

namespace {

// What the started program is told by: the work's name and its arguments, and the pipe's end.
constexpr const char* workVariable = "VELCRO_CHILD_WORK";
constexpr const char* reportVariable = "VELCRO_CHILD_REPORT";
constexpr char separator = '\x1F';

HANDLE handle(std::intptr_t value) {
    return reinterpret_cast<HANDLE>(value);
}

std::wstring ownProgram() {
    std::wstring path(32768, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path;
}

int runTold(const std::string& told) {
    std::vector<std::string> words(1);
    for (const char letter : told) {
        letter == separator ? static_cast<void>(words.emplace_back())
                            : static_cast<void>(words.back() += letter);
    }
    const char* report = std::getenv(reportVariable);
    return ChildWork::all()
        .at(words.front())
        ->run({words.begin() + 1, words.end()},
              Report(report == nullptr ? 0 : static_cast<std::intptr_t>(std::stoll(report))));
}

[[maybe_unused]] const bool startsAgain = [] {
    runAsChild = runTold;
    return true;
}();

} // namespace

bool Report::tell(const void* bytes, std::size_t size) const {
    DWORD written = 0;
    return WriteFile(handle(to_), bytes, static_cast<DWORD>(size), &written, nullptr) &&
           written == size;
}

void Report::wait() {
    for (;;) {
        Sleep(INFINITE);
    }
}

ChildProcess::ChildProcess(const ChildWork& work, const ChildWork::Arguments& arguments) {
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    HANDLE from = nullptr;
    HANDLE to = nullptr;
    if (!CreatePipe(&from, &to, &inherited, 0)) {
        throw std::runtime_error("no pipe");
    }
    SetHandleInformation(from, HANDLE_FLAG_INHERIT, 0);
    std::string told = work.name();
    for (const auto& argument : arguments) {
        told += separator + argument;
    }
    SetEnvironmentVariableA(workVariable, told.c_str());
    SetEnvironmentVariableA(reportVariable,
                            std::to_string(reinterpret_cast<std::intptr_t>(to)).c_str());
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION started{};
    const bool runs = CreateProcessW(ownProgram().c_str(), nullptr, nullptr, nullptr, TRUE, 0,
                                     nullptr, nullptr, &start, &started) != FALSE;
    SetEnvironmentVariableA(workVariable, nullptr);
    SetEnvironmentVariableA(reportVariable, nullptr);
    CloseHandle(to);
    if (!runs) {
        CloseHandle(from);
        throw std::runtime_error("no process");
    }
    CloseHandle(started.hThread);
    process_ = reinterpret_cast<std::intptr_t>(started.hProcess);
    output_ = reinterpret_cast<std::intptr_t>(from);
}

void ChildProcess::kill() const {
    TerminateProcess(handle(process_), killed);
}

void ChildProcess::killOneself() {
    TerminateProcess(GetCurrentProcess(), killed);
    Report::wait();
}

int ChildProcess::wait() {
    DWORD status = 0;
    WaitForSingleObject(handle(process_), INFINITE);
    GetExitCodeProcess(handle(process_), &status);
    CloseHandle(handle(process_));
    process_ = 0;
    return static_cast<int>(status);
}

void ChildProcess::close() const {
    CloseHandle(handle(output_));
}

bool ChildProcess::read(void* bytes, std::size_t size) const {
    auto* to = static_cast<char*>(bytes);
    while (size > 0) {
        DWORD count = 0;
        if (!ReadFile(handle(output_), to, static_cast<DWORD>(size), &count, nullptr) ||
            count == 0) {
            return false;
        }
        to += count;
        size -= count;
    }
    return true;
}

} // namespace velcro::test
