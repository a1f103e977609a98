#include "Desktop/QuitOnSignals.hpp"

#include <unistd.h>

#include <QCoreApplication>
#include <array>
#include <cerrno>
#include <csignal>

namespace Desktop {

namespace {

constexpr std::array terminationSignals{SIGTERM, SIGINT, SIGHUP};

// The self-pipe trick: write() is async-signal-safe, QCoreApplication::quit() is not.
volatile std::sig_atomic_t writeEnd = -1;

void wakeEventLoop(int) {
    const int savedErrno = errno;
    const char byte = 0;
    [[maybe_unused]] const auto written = ::write(writeEnd, &byte, sizeof byte);
    errno = savedErrno;
}

void exitNow(int) {
    ::_exit(0);
}

void install(void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigset_t blocked{};
    sigemptyset(&blocked);
    for (const int number : terminationSignals) {
        ::sigaction(number, &action, nullptr);
        sigaddset(&blocked, number);
    }
    // The signal mask is inherited, and some launchers start programs with these signals blocked.
    pthread_sigmask(SIG_UNBLOCK, &blocked, nullptr);
}

}  // namespace

void exitOnSignals() {
    install(exitNow);
}

QuitOnSignals::QuitOnSignals() {
    if (!pipe_.reader.valid()) {
        return;
    }
    writeEnd = pipe_.writer.number();
    notifier_ = std::make_unique<QSocketNotifier>(pipe_.reader.number(), QSocketNotifier::Read);
    connect(notifier_.get(), &QSocketNotifier::activated, QCoreApplication::instance(),
            &QCoreApplication::quit);
    install(wakeEventLoop);
}

QuitOnSignals::~QuitOnSignals() {
    for (const int number : terminationSignals) {
        std::signal(number, SIG_IGN);
    }
    writeEnd = -1;
}

}  // namespace Desktop
