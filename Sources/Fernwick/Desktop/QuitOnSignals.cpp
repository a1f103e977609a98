#include "Desktop/QuitOnSignals.hpp"

#include <unistd.h>

#include <QCoreApplication>
#include <QEvent>
#include <array>
#include <cerrno>
#include <csignal>

namespace Desktop {

namespace {

constexpr std::array terminationSignals{SIGTERM, SIGINT, SIGHUP};

// The self-pipe trick: write() is async-signal-safe, QCoreApplication::quit() is not.
volatile std::sig_atomic_t writeEnd = -1;

volatile std::sig_atomic_t quitRequested = 0;

void wakeEventLoop(int) {
    quitRequested = 1;
    const int savedErrno = errno;
    const char byte = 0;
    [[maybe_unused]] const auto written = ::write(writeEnd, &byte, sizeof byte);
    errno = savedErrno;
}

bool isInput(QEvent::Type type) {
    switch (type) {
        case QEvent::ShortcutOverride:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::MouseMove:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::Wheel:
            return true;
        default:
            return false;
    }
}

void exitNow(int) {
    ::_exit(0);
}

void install(void (*handler)(int)) {
    struct sigaction action = {};
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
    quitRequested = 0;
    install(wakeEventLoop);
    // Queued: the filter that is installed last sees each event first, and the key monitor of the
    // game is installed after this.
    QMetaObject::invokeMethod(
        this, [this] { QCoreApplication::instance()->installEventFilter(this); },
        Qt::QueuedConnection);
}

QuitOnSignals::~QuitOnSignals() {
    for (const int number : terminationSignals) {
        std::signal(number, SIG_IGN);
    }
    writeEnd = -1;
}

bool QuitOnSignals::eventFilter(QObject* watched, QEvent* event) {
    if (quitRequested != 0 && isInput(event->type())) {
        // Accepted, so that Qt does not look for a shortcut.
        event->accept();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace Desktop
