#include "platform/seat/SystemMenu.h"

#include <QByteArray>

#include <windows.h>

namespace velcro::seat {

bool appendToSystemMenu(WId window, int command, const QString& text) {
    auto* menu = GetSystemMenu(reinterpret_cast<HWND>(window), FALSE);
    if (menu == nullptr) {
        return false;
    }
    AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
    return AppendMenuW(menu, MF_STRING, static_cast<UINT_PTR>(command),
                       reinterpret_cast<const wchar_t*>(text.utf16())) != 0;
}

int systemMenuCommand(const QByteArray& eventType, const void* message) {
    if (eventType != "windows_generic_MSG") {
        return 0;
    }
    const auto* event = static_cast<const MSG*>(message);
    // The system uses the four low bits itself; our commands are compared whole.
    return event->message == WM_SYSCOMMAND ? static_cast<int>(event->wParam) : 0;
}

} // namespace velcro::seat
