#pragma once

#include <QAbstractEventDispatcher>
#include <QEventLoop>
#include <QTimer>

/// The most wakeups in 200 ms that count as idle.
inline constexpr int idleWakeups = 4;

/// Runs the event loop for this time and returns how often it woke up.
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
