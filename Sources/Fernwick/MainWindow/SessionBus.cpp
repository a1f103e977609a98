#include "MainWindow/SessionBus.hpp"

#include <QList>
#include <QtGlobal>
#include <optional>
#include <string_view>

#include "Garden/PortalSwitch.hpp"
#include "MainWindow/Greeting.hpp"
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

/// What every program on a bus says first. Whoever leaves at the first of the answer is told of to
/// nobody.
constexpr std::string_view greeting("\0AUTH\r\n", 7);

}  // namespace

bool isSilentBus(const QByteArray& addresses, std::chrono::milliseconds patience) {
    for (const QByteArray& address : addresses.split(';')) {
        const std::optional<QByteArray> name = socketName(address);
        if (!name || name->size() > LocalAddress::longest) {
            return false;
        }
        const Answer answer = greet(*name, greeting, patience);
        if (answer != Answer::nobody) {
            return answer == Answer::none;
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
