#include "Interrupt.h"

#include <atomic>

#include <windows.h>

namespace velcro::velsql {

struct Interrupt::Watch
{
    explicit Watch(std::function<bool()> toCancel)
        : cancel(std::move(toCancel)) {
        current = this;
        SetConsoleCtrlHandler(&Watch::handle, TRUE);
    }
    ~Watch() {
        SetConsoleCtrlHandler(&Watch::handle, FALSE);
        over = true;
        while (handling) { // it runs on a thread of the system's
            Sleep(1);
        }
        current = nullptr;
    }

    /// FALSE ends the process.
    static BOOL WINAPI handle(DWORD event) {
        Watch* const watch = current;
        if (event != CTRL_C_EVENT || watch == nullptr || watch->handling.exchange(true)) {
            return FALSE;
        }
        const bool cancels = watch->cancel();
        while (cancels && !watch->over) {
            Sleep(50);
            watch->cancel();
        }
        watch->handling = false;
        return cancels ? TRUE : FALSE;
    }

    inline static std::atomic<Watch*> current = nullptr;
    std::function<bool()> cancel;
    std::atomic<bool> over = false;
    std::atomic<bool> handling = false;
};

Interrupt::Interrupt(std::function<bool()> cancel)
    : watch_(std::make_unique<Watch>(std::move(cancel))) {}

Interrupt::~Interrupt() = default;

} // namespace velcro::velsql
