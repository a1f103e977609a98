#include "Desktop/Environment.hpp"

#include <QRegularExpression>
#include <QSysInfo>
#include <algorithm>

#include "Desktop/SessionBus.hpp"
#include "Posix/LocalSocket.hpp"

namespace {

/// libdbus starts a bus of its own, which outlives the program, when the desktop has none.
void disableMissingSessionBus() {
    if (!sessionBusExists()) {
        qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    }
}

/// Whether `address`, such as "local/hostname:@/tmp/.ICE-unix/1234", is a socket of this machine at
/// which a program listens. A leading @ stands for an abstract name.
bool isListening(const QByteArray& address) {
    const qsizetype colon = address.indexOf(':');
    const QByteArray place = address.left(colon);
    const QByteArray host = QSysInfo::machineHostName().toLocal8Bit();
    QByteArray name = address.mid(colon + 1);
    if (colon < 0 || name.isEmpty() || name.size() > LocalAddress::longest ||
        (place != "local/" + host && place != "unix/" + host)) {
        return false;
    }
    if (name.startsWith('@')) {
        name[0] = '\0';
    }
    const LocalAddress socketAddress(name);
    const FileDescriptor socket = localSocket(SOCK_STREAM | SOCK_NONBLOCK);
    return ::connect(socket.number(), socketAddress.get(), socketAddress.size()) == 0;
}

/// libICE sleeps for a second and Qt prints a warning when the session manager has gone or belongs
/// to another machine, as after `su` or in an SSH session.
void removeStaleSessionManager() {
    const QList<QByteArray> addresses = qgetenv("SESSION_MANAGER").split(',');
    if (std::ranges::none_of(addresses, isListening)) {
        qunsetenv("SESSION_MANAGER");
    }
}

/// The locale name that fontconfig reads.
QString fontLanguage() {
    for (const char* name : {"FC_LANG", "LC_ALL", "LC_CTYPE", "LANG"}) {
        if (!qEnvironmentVariableIsEmpty(name)) {
            return qEnvironmentVariable(name);
        }
    }
    return {};
}

/// fontconfig prints a warning for a locale name that it cannot parse, such as the bare "UTF-8"
/// that macOS sets in SSH sessions, and then uses English.
void replaceUnknownFontLanguage() {
    const QRegularExpression known(
        QStringLiteral("^(C|C[.]UTF-?8|POSIX|[a-z]{2,3}(_[a-z0-9]{2,3})?([.@].*)?)?$"),
        QRegularExpression::CaseInsensitiveOption);
    if (!known.match(fontLanguage()).hasMatch()) {
        qputenv("FC_LANG", "en");
    }
}

/// libpulse prints warnings about a home or runtime folder with unexpected permissions.
void sendPulseMessagesToSyslog() {
    if (!qEnvironmentVariableIsSet("PULSE_LOG")) {
        qputenv("PULSE_LOG_SYSLOG", "1");
    }
}

}  // namespace

void Desktop::prepareEnvironment() {
    disableMissingSessionBus();
    removeStaleSessionManager();
    replaceUnknownFontLanguage();
    sendPulseMessagesToSyslog();
}
