#include "platform/seat/CommandLine.h"

#include "platform/seat/WindowsApi.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <cwchar>
#include <string>

namespace velcro::seat {

// What other programs are shown is the one text that the arguments were cut from; the arguments
// themselves are copies.
void hideArgument(int argc, char** argv, const QString& text) {
    const std::wstring secret = text.toStdWString();
    if (secret.empty()) {
        return;
    }
    wchar_t* line = GetCommandLineW();
    for (wchar_t* at = std::wcsstr(line, secret.c_str()); at != nullptr;
         at = std::wcsstr(at, secret.c_str())) {
        std::fill_n(at, secret.size(), L'*');
    }
    const QByteArray bytes = text.toLocal8Bit();
    for (int i = 1; i < argc; ++i) {
        if (bytes == argv[i]) {
            std::memset(argv[i], '*', std::strlen(argv[i]));
        }
    }
}

void leaveOwnConsole() {
    std::array<DWORD, 2> others{};
    if (GetConsoleProcessList(others.data(), DWORD(others.size())) == 1) {
        FreeConsole();
    }
}

} // namespace velcro::seat
