#include "MainWindow/SessionBus.hpp"

#include <QList>
#include <QString>
#include <QtGlobal>
#include <optional>
#include <string_view>

#include "Garden/PortalSwitch.hpp"
#include "Session/LocalSocket.hpp"

namespace {

constexpr const char* addressVariable = "DBUS_SESSION_BUS_ADDRESS";
constexpr const char* noBus = "disabled:";

/// The bus of all of the user's programs, for those who are told of no other.
QByteArray userBus() {
    return qgetenv("XDG_RUNTIME_DIR") + "/bus";
}

/// The name of the socket in one address of a bus, such as "unix:path=/run/user/1000/bus"; none in
/// one of another kind.
std::optional<QByteArray> socketName(const QByteArray& address) {
    const QByteArray local = "unix:";
    if (!address.startsWith(local)) {
        return std::nullopt;
    }
    for (const QByteArray& setting : address.mid(local.size()).split(',')) {
        const qsizetype sign = setting.indexOf('=');
        const QByteArray key = setting.left(sign);
        const QByteArray value = QByteArray::fromPercentEncoding(setting.mid(sign + 1));
        if (key == "path") {
            return value;
        }
        if (key == "abstract") {
            return '\0' + value;
        }
        if (key == "runtime") {
            return userBus();
        }
    }
    return std::nullopt;
}

enum class Call { answered, unanswered, nobody };

/// Says the first words of every program on a bus, and leaves at the first of the answer: the bus
/// tells nobody of such a caller.
Call call(const QByteArray& name, std::chrono::milliseconds patience) {
    constexpr std::string_view greeting("\0AUTH\r\n", 7);
    const timeval atMost{patience.count() / 1000, patience.count() % 1000 * 1000};
    const LocalAddress address(name);
    const FileDescriptor socket = localSocket(SOCK_STREAM);
    waitAtMost(socket, SO_SNDTIMEO, atMost);
    waitAtMost(socket, SO_RCVTIMEO, atMost);
    if (::connect(socket.number(), address.get(), address.size()) != 0) {
        return errno == EAGAIN ? Call::unanswered : Call::nobody;
    }
    ::send(socket.number(), greeting.data(), greeting.size(), MSG_NOSIGNAL);
    char answer = 0;
    const ssize_t count = ::recv(socket.number(), &answer, sizeof answer, 0);
    return count < 0 && errno == EAGAIN ? Call::unanswered : Call::answered;
}

}  // namespace

bool isSilentBus(const QByteArray& addresses, std::chrono::milliseconds patience) {
    for (const QByteArray& address : addresses.split(';')) {
        const std::optional<QByteArray> name = socketName(address);
        if (!name || name->size() > LocalAddress::longest) {
            return false;
        }
        const Call outcome = call(*name, patience);
        if (outcome != Call::nobody) {
            return outcome == Call::unanswered;
        }
    }
    return false;
}

void leaveMissingSessionBusAlone() {
    if (!Garden::sessionBusExists()) {
        qputenv(addressVariable, noBus);
    }
}

void leaveSilentSessionBusAlone(std::chrono::milliseconds patience) {
    const QByteArray addresses = qEnvironmentVariableIsEmpty(addressVariable)
                                     ? QByteArray("unix:runtime=yes")
                                     : qgetenv(addressVariable);
    if (isSilentBus(addresses, patience)) {
        qputenv(addressVariable, noBus);
    }
}
