#pragma once

#include <QObject>

class QSocketNotifier;

/// Has the signals that ask a program to end end it on the spot, with status 0, until there is an
/// event loop to quit. To be called before there is anything to store.
void endAtOnceOnSignals();

/// Turns the signals that ask a program to end (SIGTERM, SIGINT, SIGHUP) into an orderly quit of
/// the event loop, with status 0. One per process; once it is gone, the program is ending, and
/// these signals no longer disturb it.
class UnixSignals : public QObject {
    Q_OBJECT

public:
    UnixSignals();
    ~UnixSignals() override;

private:
    int readEnd_ = -1;
    QSocketNotifier* notifier_ = nullptr;
};
