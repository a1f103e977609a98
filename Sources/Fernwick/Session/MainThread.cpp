#include "Session/MainThread.hpp"

#include <QCoreApplication>
#include <QThread>
#include <cstdio>
#include <cstdlib>

void assertMainThread(int line) {
    const QCoreApplication* application = QCoreApplication::instance();
    if (application == nullptr || QThread::currentThread() == application->thread()) {
        return;
    }
    std::fprintf(stderr, "Fernwick/FernwickApp:%d: not on the main thread\n", line);
    std::abort();
}
