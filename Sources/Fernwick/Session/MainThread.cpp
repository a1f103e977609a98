#include "Session/MainThread.hpp"

#include <QCoreApplication>
#include <QThread>
#include <cstdio>
#include <cstdlib>

void assertMainThread(const std::source_location& where) {
    const QCoreApplication* application = QCoreApplication::instance();
    if (application == nullptr || QThread::currentThread() == application->thread()) {
        return;
    }
    std::fprintf(stderr, "Fernwick/FernwickApp:%u: not on the main thread\n", where.line());
    std::abort();
}
