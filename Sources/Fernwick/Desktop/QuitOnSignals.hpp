#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <memory>

#include "Posix/FileDescriptor.hpp"

namespace Desktop {

/// Makes SIGTERM, SIGINT and SIGHUP exit the process immediately with status 0. For start-up, when
/// there is no event loop to quit yet and nothing to save.
void exitOnSignals();

/// Turns SIGTERM, SIGINT and SIGHUP into QCoreApplication::quit(). One per process. Destroy it
/// when the program is exiting: the signals are ignored from then on.
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
