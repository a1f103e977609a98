#pragma once

#include <QByteArray>
#include <QObject>
#include <QSocketNotifier>
#include <filesystem>
#include <memory>

#include "Posix/FileDescriptor.hpp"

namespace Desktop {

/// Single-instance guard. The first process binds an abstract AF_UNIX socket; later ones ask it to
/// activate its window. The kernel frees the name when the process ends, even by SIGKILL, so there
/// is no stale lock. Processes with another user, settings folder or root directory get another
/// name.
class SingleInstance : public QObject {
    Q_OBJECT

public:
    enum class Role {
        first,   ///< this process has bound the socket
        second,  ///< another instance has, and has been sent an activation request
        unknown  ///< neither: the socket failed, or another user has bound it
    };

    /// `settings` is the path of the settings file, which need not exist. Waits at most a second
    /// for the other instance to respond, one for the Wayland compositor if there is another
    /// instance, and six seconds for one that is about to end. Needs no QCoreApplication.
    explicit SingleInstance(const std::filesystem::path& settings);

    [[nodiscard]] Role role() const { return role_; }
    /// For the second instance: whether the first one comes to the front. It does not on Wayland if
    /// this process has inherited no activation token; then it asks for attention instead. Nor does
    /// it while it does not respond.
    [[nodiscard]] bool bringsForward() const { return bringsForward_; }

    /// Starts to handle activation requests, including those received so far. Needs the
    /// QCoreApplication.
    void listen();
    /// Refuses requests from now on, as this process is about to end. A later start waits until the
    /// destructor or the end of the process frees the name, and becomes the first instance.
    void stopListening();

Q_SIGNALS:
    /// A later start asks for the window. `activationToken` is the one that its launcher passed,
    /// often empty.
    void activationRequested(const QByteArray& activationToken);

private:
    void acceptRequest();

    Role role_ = Role::unknown;
    bool bringsForward_ = false;
    Posix::FileDescriptor listener_{-1};
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace Desktop
