#include "Desktop/SingleInstance.hpp"

#include <sys/stat.h>

#include <QCryptographicHash>
#include <QSocketNotifier>
#include <array>
#include <chrono>
#include <thread>

#include "Posix/LocalSocket.hpp"

namespace fs = std::filesystem;

namespace {

constexpr char answered = 1;
constexpr timeval patienceForAnswer{1, 0};
constexpr timeval patienceForQuestion{0, 100'000};

/// Told apart by user, settings and root folder: what is the same path in a container may be
/// another file.
QByteArray nameFor(const fs::path& settings) {
    std::error_code error;
    fs::path folder = fs::weakly_canonical(settings.parent_path(), error);
    if (error) {
        folder = settings.parent_path();
    }
    struct stat root {};
    ::stat("/", &root);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(QByteArray::fromStdString(folder.native()));
    hash.addData(QByteArray::number(root.st_dev) + ' ' + QByteArray::number(root.st_ino));
    // Behind a NUL: such a name lies in no folder.
    return '\0' + ("fernwick-" + QByteArray::number(::getuid()) + '-' + hash.result().toHex());
}

/// Anyone on the machine may take or call a name; only the same user is listened to.
bool isOwnUser(const FileDescriptor& connection) {
    ucred other{};
    socklen_t size = sizeof other;
    return ::getsockopt(connection.number(), SOL_SOCKET, SO_PEERCRED, &other, &size) == 0 &&
           other.uid == ::getuid();
}

/// Desktops give what they start a token that lets it come to the front.
QByteArray ownActivationToken() {
    const QByteArray token = qgetenv("XDG_ACTIVATION_TOKEN");
    return token.isEmpty() ? qgetenv("DESKTOP_STARTUP_ID") : token;
}

enum class Call { heard, unheard, nobody, stranger };

/// Asks the game that holds the address to come forward.
Call call(const LocalAddress& address) {
    const FileDescriptor connection = localSocket(SOCK_SEQPACKET);
    waitAtMost(connection, SO_SNDTIMEO, patienceForAnswer);
    waitAtMost(connection, SO_RCVTIMEO, patienceForAnswer);
    if (::connect(connection.number(), address.get(), address.size()) != 0) {
        return errno == EAGAIN ? Call::unheard : Call::nobody;
    }
    if (!isOwnUser(connection)) {
        return Call::stranger;
    }
    // The token ends with its NUL, for an empty message would read like the end of the call.
    const QByteArray token = ownActivationToken();
    ::send(connection.number(), token.constData(), static_cast<std::size_t>(token.size()) + 1,
           MSG_NOSIGNAL);
    char answer = 0;
    const ssize_t count = ::recv(connection.number(), &answer, sizeof answer, 0);
    if (count > 0) {
        return Call::heard;
    }
    return count < 0 && errno == EAGAIN ? Call::unheard : Call::nobody;
}

}  // namespace

SingleInstance::SingleInstance(const fs::path& settings) {
    constexpr auto patience = std::chrono::seconds(1);
    constexpr auto pause = std::chrono::milliseconds(2);
    constexpr int waitingCalls = 16;
    const LocalAddress address(nameFor(settings));
    const auto deadline = std::chrono::steady_clock::now() + patience;
    do {
        FileDescriptor socket = localSocket(SOCK_SEQPACKET | SOCK_NONBLOCK);
        if (::bind(socket.number(), address.get(), address.size()) == 0) {
            if (::listen(socket.number(), waitingCalls) == 0) {
                listener_ = std::move(socket);
                place_ = Place::first;
            }
            return;
        }
        if (errno != EADDRINUSE) {
            return;
        }
        switch (call(address)) {
            case Call::heard:
            case Call::unheard:
                place_ = Place::second;
                return;
            case Call::stranger:
                return;
            case Call::nobody:
                // It is about to listen or has just ended.
                std::this_thread::sleep_for(pause);
        }
    } while (std::chrono::steady_clock::now() < deadline);
}

SingleInstance::~SingleInstance() = default;

void SingleInstance::answer() {
    if (place_ != Place::first || notifier_ != nullptr) {
        return;
    }
    notifier_ = new QSocketNotifier(listener_.number(), QSocketNotifier::Read, this);
    connect(notifier_, &QSocketNotifier::activated, this, &SingleInstance::answerOne);
}

void SingleInstance::leave() {
    delete notifier_;
    notifier_ = nullptr;
    listener_.close();
    place_ = Place::unknown;
}

void SingleInstance::answerOne() {
    const FileDescriptor connection(uninterrupted(
        [&] { return ::accept4(listener_.number(), nullptr, nullptr, SOCK_CLOEXEC); }));
    if (!connection.valid() || !isOwnUser(connection)) {
        return;
    }
    waitAtMost(connection, SO_RCVTIMEO, patienceForQuestion);
    std::array<char, 1024> token{};
    const ssize_t count = ::recv(connection.number(), token.data(), token.size() - 1, 0);
    if (count <= 0) {
        return;
    }
    ::send(connection.number(), &answered, sizeof answered, MSG_NOSIGNAL | MSG_DONTWAIT);
    Q_EMIT startedAgain(QByteArray(token.data()));
}
