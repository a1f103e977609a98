#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <memory>

#include "Posix/FileDescriptor.hpp"

namespace Desktop {

/// Makes SIGTERM, SIGINT and SIGHUP exit the process immediately with status 0. For start-up, when
/// there is no event loop to quit yet and nothing to save.
void exitOnSignals();

/// Turns SIGTERM, SIGINT and SIGHUP into QCoreApplication::quit(). From the signal on, input events
/// are dropped: Qt handles all that are queued before it gets to the signal, which may take minutes
/// if a program has sent very many. One per process. Destroy it when the program is exiting: the
/// signals are ignored from then on.
class QuitOnSignals : public QObject {
    Q_OBJECT

public:
    QuitOnSignals();
    ~QuitOnSignals() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Posix::Pipe pipe_ = Posix::Pipe::open();
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace Desktop
