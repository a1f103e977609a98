#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <memory>

#include "Posix/FileDescriptor.hpp"

namespace Desktop {

/// Lets SIGTERM, SIGINT and SIGHUP end the process at once with status 0. For the time before
/// there is an event loop to quit and anything to store.
void exitOnSignals();

/// Turns SIGTERM, SIGINT and SIGHUP into QCoreApplication::quit(). One per process. Destroying it
/// means the program is ending, and these signals are ignored from then on.
class QuitOnSignals : public QObject {
    Q_OBJECT

public:
    QuitOnSignals();
    ~QuitOnSignals() override;

private:
    Posix::Pipe pipe_ = Posix::Pipe::open();
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace Desktop
