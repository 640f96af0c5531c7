#include "platform/seat/ProgramVersion.h"

#include "platform/seat/WindowsApi.h"

#include <vector>

namespace velcro::seat {

QString programFileVersion() {
    constexpr DWORD longestPath = 32768;
    std::vector<wchar_t> file(longestPath);
    if (GetModuleFileNameW(nullptr, file.data(), longestPath) == 0) {
        return {};
    }
    const DWORD size = GetFileVersionInfoSizeW(file.data(), nullptr);
    std::vector<char> block(size);
    VS_FIXEDFILEINFO* fixed = nullptr;
    UINT length = 0;
    if (size == 0 || !GetFileVersionInfoW(file.data(), 0, size, block.data()) ||
        !VerQueryValueW(block.data(), L"\\", reinterpret_cast<void**>(&fixed), &length)) {
        return {};
    }
    return QStringLiteral("%1.%2.%3.%4")
        .arg(HIWORD(fixed->dwFileVersionMS))
        .arg(LOWORD(fixed->dwFileVersionMS))
        .arg(HIWORD(fixed->dwFileVersionLS))
        .arg(LOWORD(fixed->dwFileVersionLS));
}

} // namespace velcro::seat
