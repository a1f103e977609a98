#include "MainWindow/InputMethod.hpp"

#include <QByteArray>
#include <QDBusConnection>
#include <QFile>
#include <QStandardPaths>
#include <QString>
#include <QtGlobal>

#include "MainWindow/SessionBus.hpp"

namespace {

constexpr const char* chosen = "QT_IM_MODULE";

// IBus is the one that the toolkit comes with and waits for. It has a bus of its own for each
// display, and says where in a file. What follows is how every program finds that.

QByteArray servedDisplay() {
    if (qEnvironmentVariableIsSet("WAYLAND_DISPLAY")) {
        return "unix-" + qgetenv("WAYLAND_DISPLAY");
    }
    // The host, where it is another one, the display and its screen: "far:10.0".
    const QByteArray display = qgetenv("DISPLAY");
    const qsizetype colon = display.indexOf(':');
    const QByteArray host = colon > 0 ? display.left(colon) : "unix";
    return host + '-' + display.mid(colon + 1).split('.').first();
}

QString addressFile() {
    if (qEnvironmentVariableIsSet("IBUS_ADDRESS_FILE")) {
        return qEnvironmentVariable("IBUS_ADDRESS_FILE");
    }
    return QStandardPaths::writableLocation(QStandardPaths::ConfigLocation) +
           QStringLiteral("/ibus/bus/") +
           QString::fromUtf8(QDBusConnection::localMachineId() + '-' + servedDisplay());
}

/// Empty where no input method is at work.
QByteArray addressOfItsBus() {
    const QByteArray key = "IBUS_ADDRESS=";
    QFile file(addressFile());
    if (!file.open(QFile::ReadOnly)) {
        return {};
    }
    while (!file.atEnd()) {
        const QByteArray line = file.readLine().trimmed();
        if (line.startsWith(key)) {
            return line.mid(key.size());
        }
    }
    return {};
}

}  // namespace

void leaveSilentInputMethodAlone(std::chrono::milliseconds patience) {
    if (qgetenv(chosen).toLower() == "ibus" && isSilentBus(addressOfItsBus(), patience)) {
        qunsetenv(chosen);
    }
}
