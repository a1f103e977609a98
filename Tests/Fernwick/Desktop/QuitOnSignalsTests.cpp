#include <gtest/gtest.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QSignalSpy>
#include <cerrno>
#include <csignal>
#include <memory>

#include "Desktop/QuitOnSignals.hpp"

namespace {

/// errno after raising more signals than fit into the pipe, or the first one that is not 0.
int errnoAfterManySignals() {
    constexpr int count = 1 << 17;
    int error = 0;
    for (int i = 0; i < count && error == 0; ++i) {
        errno = 0;
        std::raise(SIGHUP);
        error = errno;
    }
    return error;
}

/// Counts the input events of the application, as an event filter of the game would see them.
class InputCounter : public QObject {
public:
    InputCounter() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        count += dynamic_cast<QInputEvent*>(event) != nullptr ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }

    int count = 0;
};

void sendInput(QObject& receiver) {
    for (const QEvent::Type type :
         {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent key(type, Qt::Key_Tab, Qt::NoModifier);
        QCoreApplication::sendEvent(&receiver, &key);
    }
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseMove,
                                    QEvent::MouseButtonRelease, QEvent::MouseButtonDblClick}) {
        QMouseEvent mouse(type, {}, {}, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&receiver, &mouse);
    }
    QWheelEvent wheel({}, {}, {}, {}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&receiver, &wheel);
}

class QuitOnSignalsTest : public testing::TestWithParam<int> {
protected:
    ~QuitOnSignalsTest() override {
        for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
            std::signal(number, SIG_DFL);
        }
    }
};

}  // namespace

TEST_P(QuitOnSignalsTest, quitsTheEventLoopWithStatus0) {
    const Desktop::QuitOnSignals quitOnSignals;

    const auto raise = [] { std::raise(GetParam()); };
    QMetaObject::invokeMethod(qApp, raise, Qt::QueuedConnection);

    EXPECT_EQ(QCoreApplication::exec(), 0);
}

TEST_P(QuitOnSignalsTest, exitsImmediatelyBeforeThereIsAnEventLoop) {
    EXPECT_EXIT(
        {
            Desktop::exitOnSignals();
            std::raise(GetParam());
            ::_exit(1);
        },
        testing::ExitedWithCode(0), "");
}

TEST_P(QuitOnSignalsTest, ignoresTheSignalOnceDestroyed) {
    std::make_unique<Desktop::QuitOnSignals>().reset();

    std::raise(GetParam());
}

TEST_P(QuitOnSignalsTest, dropsAllInputFromTheSignalOn) {
    const Desktop::QuitOnSignals quitOnSignals;
    InputCounter counter;
    QObject receiver;
    QCoreApplication::processEvents();
    sendInput(receiver);
    EXPECT_EQ(counter.count, 8);

    std::raise(GetParam());
    sendInput(receiver);

    EXPECT_EQ(counter.count, 8);
}

INSTANTIATE_TEST_SUITE_P(Signals, QuitOnSignalsTest, testing::Values(SIGTERM, SIGINT, SIGHUP));

TEST_F(QuitOnSignalsTest, preservesErrnoOfTheInterruptedCode) {
    const Desktop::QuitOnSignals quitOnSignals;

    EXPECT_EQ(errnoAfterManySignals(), 0);
}

TEST_F(QuitOnSignalsTest, unblocksSignalsThatTheParentProcessHadBlocked) {
    sigset_t blocked{};
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &blocked, nullptr);
    const Desktop::QuitOnSignals quitOnSignals;

    std::raise(SIGTERM);

    sigset_t pending{};
    sigpending(&pending);
    EXPECT_EQ(sigismember(&pending, SIGTERM), 0);
    sigset_t mask{};
    pthread_sigmask(SIG_UNBLOCK, nullptr, &mask);
    EXPECT_EQ(sigismember(&mask, SIGTERM), 0);
}
