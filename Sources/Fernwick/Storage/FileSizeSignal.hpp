#pragma once

#include <csignal>
#include <ctime>

/// While it lives, writing beyond the process's file size limit (`ulimit -f`) only fails on this
/// thread, as on a full disk, instead of ending the program by the signal SIGXFSZ.
class FileSizeSignal {
public:
    FileSizeSignal() {
        sigemptyset(&signal_);
        sigaddset(&signal_, SIGXFSZ);
        pthread_sigmask(SIG_BLOCK, &signal_, &before_);
    }
    FileSizeSignal(const FileSizeSignal&) = delete;
    FileSizeSignal& operator=(const FileSizeSignal&) = delete;
    ~FileSizeSignal() {
        // One that came meanwhile would be delivered the moment it is let through again.
        constexpr timespec atOnce{0, 0};
        sigtimedwait(&signal_, nullptr, &atOnce);
        pthread_sigmask(SIG_SETMASK, &before_, nullptr);
    }

private:
    sigset_t signal_{};
    sigset_t before_{};
};
