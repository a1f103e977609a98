#include "Desktop/Environment.hpp"

#include <QFileInfo>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QSysInfo>
#include <algorithm>

#include "Desktop/ActivationToken.hpp"
#include "Posix/LocalSocket.hpp"

namespace Desktop {

namespace {

/// Whether a process on this machine listens at an ICE address such as
/// "local/hostname:@/tmp/.ICE-unix/1234", where @ marks an abstract socket name.
bool isListening(const QByteArray& address) {
    const qsizetype colon = address.indexOf(':');
    const QByteArray transport = address.left(colon);
    const QByteArray host = QSysInfo::machineHostName().toLocal8Bit();
    QByteArray name = address.mid(colon + 1);
    if (colon < 0 || name.isEmpty() || name.size() > Posix::LocalAddress::maximumSize ||
        (transport != "local/" + host && transport != "unix/" + host)) {
        return false;
    }
    if (name.startsWith('@')) {
        name[0] = '\0';
    }
    const Posix::LocalAddress socketAddress(name);
    const Posix::FileDescriptor socket = Posix::localSocket(SOCK_STREAM | SOCK_NONBLOCK);
    return ::connect(socket.number(), socketAddress.get(), socketAddress.size()) == 0;
}

/// When the session manager has exited or is on another machine, as after `su` or in an SSH
/// session, libICE sleeps for a second and Qt prints a warning.
void removeStaleSessionManager() {
    const QList<QByteArray> addresses = qgetenv("SESSION_MANAGER").split(',');
    if (std::ranges::none_of(addresses, isListening)) {
        qunsetenv("SESSION_MANAGER");
    }
}

/// The locale name as fontconfig determines it.
QString fontLanguage() {
    for (const char* name : {"FC_LANG", "LC_ALL", "LC_CTYPE", "LANG"}) {
        if (!qEnvironmentVariableIsEmpty(name)) {
            return qEnvironmentVariable(name);
        }
    }
    return {};
}

/// fontconfig prints a warning about a locale name that it cannot parse, such as the "UTF-8" that
/// macOS passes into SSH sessions, and falls back to English.
void replaceInvalidFontLanguage() {
    const QRegularExpression valid(
        QStringLiteral("^(C|C[.]UTF-?8|POSIX|[a-z]{2,3}(_[a-z0-9]{2,3})?([.@].*)?)?$"),
        QRegularExpression::CaseInsensitiveOption);
    if (!valid.match(fontLanguage()).hasMatch()) {
        qputenv("FC_LANG", "en");
    }
}

/// libwayland prints an error if it has no folder to look for the compositor's socket in. Qt would
/// then try the X server.
void avoidWaylandWithoutFolder() {
    const bool isTried =
        qEnvironmentVariableIsSet("WAYLAND_DISPLAY") || qgetenv("XDG_SESSION_TYPE") == "wayland";
    const bool canConnect = qgetenv("XDG_RUNTIME_DIR").startsWith('/') ||
                            qgetenv("WAYLAND_DISPLAY").startsWith('/') ||
                            qEnvironmentVariableIsSet("WAYLAND_SOCKET");
    if (isTried && !canConnect && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "xcb");
    }
}

}  // namespace

void prepareEnvironment() {
    if (!sessionBusExists()) {
        // Otherwise libdbus starts a bus that outlives the program.
        qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    }
    removeStaleSessionManager();
    replaceInvalidFontLanguage();
    avoidWaylandWithoutFolder();
    if (!qEnvironmentVariableIsSet("PULSE_LOG")) {
        // libpulse prints warnings when the home or runtime folder belongs to another user.
        qputenv("PULSE_LOG_SYSLOG", "1");
    }
    reserveActivationToken();
}

bool usesWayland() {
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    return platform.isEmpty() ? qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
                                    qgetenv("XDG_SESSION_TYPE") == "wayland"
                              : platform.startsWith("wayland");
}

bool isOnWayland() {
    return QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
}

bool sessionBusExists() {
    const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") ||
           (!folder.isEmpty() && QFileInfo::exists(folder + QStringLiteral("/bus")));
}

}  // namespace Desktop
