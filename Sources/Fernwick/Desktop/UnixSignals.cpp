#include "Desktop/UnixSignals.hpp"

#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QSocketNotifier>
#include <array>
#include <cerrno>
#include <csignal>

namespace {

constexpr std::array endingSignals{SIGTERM, SIGINT, SIGHUP};

// A signal handler may do next to nothing: it leaves a byte that wakes the event loop.
volatile std::sig_atomic_t writeEnd = -1;

/// Some programs block signals in what they start, which would leave only a kill to end the game.
void letThrough() {
    sigset_t ending{};
    sigemptyset(&ending);
    for (const int number : endingSignals) {
        sigaddset(&ending, number);
    }
    pthread_sigmask(SIG_UNBLOCK, &ending, nullptr);
}

void leaveByte(int) {
    // What it interrupted may be about to ask why its own call failed.
    const int interrupted = errno;
    const char byte = 0;
    [[maybe_unused]] const auto written = ::write(writeEnd, &byte, sizeof byte);
    errno = interrupted;
}

void endAtOnce(int) {
    ::_exit(0);
}

void answerWith(void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int number : endingSignals) {
        ::sigaction(number, &action, nullptr);
    }
    letThrough();
}

}  // namespace

void endAtOnceOnSignals() {
    answerWith(endAtOnce);
}

UnixSignals::UnixSignals() {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        return;
    }
    readEnd_ = ends[0];
    writeEnd = ends[1];
    notifier_ = new QSocketNotifier(readEnd_, QSocketNotifier::Read, this);
    connect(notifier_, &QSocketNotifier::activated, QCoreApplication::instance(),
            &QCoreApplication::quit);
    answerWith(leaveByte);
}

UnixSignals::~UnixSignals() {
    for (const int number : endingSignals) {
        std::signal(number, SIG_IGN);
    }
    if (readEnd_ >= 0) {
        delete notifier_;
        ::close(readEnd_);
        ::close(writeEnd);
        writeEnd = -1;
    }
}
