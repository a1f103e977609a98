#pragma once

#include <QAbstractEventDispatcher>
#include <QEventLoop>
#include <QTimer>

/// What a program at rest may wake up for in a fifth of a second.
inline constexpr int idleWakeups = 4;

/// How often the event loop wakes up in the given time, all by itself.
[[nodiscard]] inline int wakeups(int milliseconds) {
    int count = 0;
    QEventLoop loop;
    const QMetaObject::Connection counter =
        QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake,
                         [&count] { ++count; });
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
    QObject::disconnect(counter);
    return count;
}
