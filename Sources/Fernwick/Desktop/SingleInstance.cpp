#include "Desktop/SingleInstance.hpp"

#include <sys/stat.h>

#include <QCryptographicHash>
#include <QLoggingCategory>
#include <array>
#include <chrono>
#include <cstring>
#include <optional>
#include <thread>

#include "Desktop/Environment.hpp"
#include "Desktop/WaylandToken.hpp"
#include "Posix/LocalSocket.hpp"

namespace fs = std::filesystem;
using Posix::FileDescriptor;
using Posix::LocalAddress;

namespace Desktop {

namespace {

// Printed only when QT_LOGGING_RULES enables it.
Q_LOGGING_CATEGORY(instanceLog, "fernwick.instance", QtFatalMsg)

constexpr char acknowledgement = 1;
constexpr timeval replyTimeout{1, 0};
constexpr timeval requestTimeout{0, 100'000};

/// The root directory is part of the name because a container may show another file under the same
/// path.
QByteArray socketName(const fs::path& settings) {
    std::error_code error;
    fs::path folder = fs::weakly_canonical(settings.parent_path(), error);
    if (error) {
        folder = settings.parent_path();
    }
    struct stat root = {};
    ::stat("/", &root);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(QByteArray::fromStdString(folder.native()));
    hash.addData(QByteArray::number(root.st_dev) + ' ' + QByteArray::number(root.st_ino));
    // The null byte makes it an abstract name, with no file.
    return '\0' + ("fernwick-" + QByteArray::number(::getuid()) + '-' + hash.result().toHex());
}

/// Any user can bind or connect to an abstract socket.
bool isSameUser(const FileDescriptor& connection) {
    ucred peer{};
    socklen_t size = sizeof peer;
    return ::getsockopt(connection.number(), SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 &&
           peer.uid == ::getuid();
}

/// The token with which the launcher allows a window to come to the front.
QByteArray inheritedActivationToken() {
    const QByteArray token = qgetenv("XDG_ACTIVATION_TOKEN");
    return token.isEmpty() ? qgetenv("DESKTOP_STARTUP_ID") : token;
}

FileDescriptor acceptConnection(const FileDescriptor& listener) {
    return FileDescriptor(Posix::retryOnInterrupt(
        [&] { return ::accept4(listener.number(), nullptr, nullptr, SOCK_CLOEXEC); }));
}

enum class Reply { acknowledged, timedOut, closed, otherUser };

/// Sends the instance that has bound `address` an activation request.
Reply requestActivation(const LocalAddress& address, const QByteArray& token) {
    const FileDescriptor connection = Posix::localSocket(SOCK_SEQPACKET);
    Posix::setTimeout(connection, SO_SNDTIMEO, replyTimeout);
    Posix::setTimeout(connection, SO_RCVTIMEO, replyTimeout);
    if (::connect(connection.number(), address.get(), address.size()) != 0) {
        return errno == EAGAIN ? Reply::timedOut : Reply::closed;
    }
    if (!isSameUser(connection)) {
        return Reply::otherUser;
    }
    // Including the null terminator: an empty packet would read like the end of the connection.
    ::send(connection.number(), token.constData(), static_cast<std::size_t>(token.size()) + 1,
           MSG_NOSIGNAL);
    char reply = 0;
    const ssize_t count = ::recv(connection.number(), &reply, sizeof reply, 0);
    if (count > 0) {
        return Reply::acknowledged;
    }
    return count < 0 && errno == EAGAIN ? Reply::timedOut : Reply::closed;
}

}  // namespace

SingleInstance::SingleInstance(const fs::path& settings) {
    // An instance that is about to end may wait five seconds for the disk.
    constexpr auto timeout = std::chrono::seconds(6);
    constexpr auto pause = std::chrono::milliseconds(2);
    constexpr int backlog = 16;
    const LocalAddress address(socketName(settings));
    std::optional<QByteArray> token;
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    do {
        FileDescriptor socket = Posix::localSocket(SOCK_SEQPACKET | SOCK_NONBLOCK);
        if (::bind(socket.number(), address.get(), address.size()) == 0) {
            if (::listen(socket.number(), backlog) == 0) {
                listener_ = std::move(socket);
                role_ = Role::first;
                qCDebug(instanceLog, "first instance");
            }
            return;
        }
        if (errno != EADDRINUSE) {
            qCWarning(instanceLog, "unknown: bind failed: %s", std::strerror(errno));
            return;
        }
        if (!token) {
            token = inheritedActivationToken();
            bringsForward_ = !token->isEmpty() || !usesWayland();
            if (!bringsForward_) {
                token = requestWaylandToken();
            }
        }
        switch (requestActivation(address, *token)) {
            case Reply::acknowledged:
                role_ = Role::second;
                qCDebug(instanceLog, "second instance: the first one activates its window");
                return;
            case Reply::timedOut:
                role_ = Role::second;
                bringsForward_ = false;
                qCWarning(instanceLog, "second instance: the first one does not respond");
                return;
            case Reply::otherUser:
                qCWarning(instanceLog, "unknown: another user has bound the socket");
                return;
            case Reply::closed:
                // The other process is between bind() and listen(), or about to end.
                std::this_thread::sleep_for(pause);
        }
    } while (std::chrono::steady_clock::now() < deadline);
    qCWarning(instanceLog, "unknown: the socket is taken but refuses connections");
}

void SingleInstance::listen() {
    if (role_ != Role::first || notifier_ != nullptr) {
        return;
    }
    notifier_ = std::make_unique<QSocketNotifier>(listener_.number(), QSocketNotifier::Read);
    connect(notifier_.get(), &QSocketNotifier::activated, this, &SingleInstance::acceptRequest);
}

void SingleInstance::stopListening() {
    notifier_.reset();
    ::shutdown(listener_.number(), SHUT_RDWR);
    while (acceptConnection(listener_).valid()) {
        // Closed at once: the other process tries again.
    }
}

void SingleInstance::acceptRequest() {
    const FileDescriptor connection = acceptConnection(listener_);
    if (!connection.valid() || !isSameUser(connection)) {
        return;
    }
    Posix::setTimeout(connection, SO_RCVTIMEO, requestTimeout);
    std::array<char, 1024> token{};
    const ssize_t count = ::recv(connection.number(), token.data(), token.size() - 1, 0);
    if (count <= 0) {
        return;
    }
    ::send(connection.number(), &acknowledgement, sizeof acknowledgement,
           MSG_NOSIGNAL | MSG_DONTWAIT);
    qCDebug(instanceLog, "activation requested by a later start, %s a token",
            token[0] == '\0' ? "without" : "with");
    Q_EMIT activationRequested(QByteArray(token.data()));
}

}  // namespace Desktop
