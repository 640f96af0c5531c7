#include "Interrupt.h"

#include <atomic>
#include <csignal>
#include <thread>

#include <unistd.h>

namespace velcro::velsql {

namespace {

constexpr int interrupted = 128 + SIGINT; // the exit status that shells expect

bool isIgnored() {
    struct sigaction now = {};
    sigaction(SIGINT, nullptr, &now);
    return now.sa_handler == SIG_IGN;
}

} // namespace

struct Interrupt::Watch
{
    explicit Watch(std::function<bool()> toCancel)
        : cancel(std::move(toCancel)) {
        sigemptyset(&signals);
        sigaddset(&signals, SIGINT);
        pthread_sigmask(SIG_BLOCK, &signals, &before);
        thread = std::thread([this] { wait(); });
    }
    ~Watch() {
        over = true;
        pthread_kill(thread.native_handle(), SIGINT);
        thread.join();
        pthread_sigmask(SIG_SETMASK, &before, nullptr);
    }

    void wait() {
        int signal = 0;
        sigwait(&signals, &signal);
        if (!over && !cancel()) {
            _exit(interrupted);
        }
        while (!over) {
            const timespec pause{0, 50'000'000};
            if (sigtimedwait(&signals, nullptr, &pause) == SIGINT && !over) {
                _exit(interrupted);
            }
            cancel();
        }
    }

    std::function<bool()> cancel;
    std::atomic<bool> over = false;
    sigset_t signals = {};
    sigset_t before = {};
    std::thread thread;
};

Interrupt::Interrupt(std::function<bool()> cancel) {
    if (!isIgnored()) {
        watch_ = std::make_unique<Watch>(std::move(cancel));
    }
}

Interrupt::~Interrupt() = default;

} // namespace velcro::velsql
