#include "MainWindow/SilentServices.hpp"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusPendingReply>
#include <QGuiApplication>
#include <QVariantMap>

#include "MainWindow/SessionBus.hpp"

namespace {

using Milliseconds = std::chrono::milliseconds;

QDBusMessage question(const char* service, const char* path, const char* interface,
                      const char* method) {
    const auto text = [](const char* latin) { return QString::fromLatin1(latin); };
    QDBusMessage message =
        QDBusMessage::createMethodCall(text(service), text(path), text(interface), text(method));
    message.setAutoStartService(false);
    return message;
}

QDBusPendingCall ask(const QDBusConnection& bus, const QDBusMessage& message,
                     Milliseconds patience) {
    return bus.asyncCall(message, static_cast<int>(patience.count()));
}

/// That there is no such service, or that it refuses, is an answer too.
bool staysSilent(QDBusPendingCall call) {
    call.waitForFinished();
    return call.error().type() == QDBusError::NoReply;
}

// Something is asked that the service itself has to answer: its bus library would say on its own
// that it is there.

QDBusPendingCall askMenuRegistrar(const QDBusConnection& bus, Milliseconds patience) {
    constexpr uint noWindow = 0;
    QDBusMessage message =
        question("com.canonical.AppMenu.Registrar", "/com/canonical/AppMenu/Registrar",
                 "com.canonical.AppMenu.Registrar", "GetMenuForWindow");
    message << noWindow;
    return ask(bus, message, patience);
}

QDBusPendingCall askWhoNeedsAssistance(const QDBusConnection& bus, Milliseconds patience) {
    QDBusMessage message =
        question("org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "GetAll");
    message << QStringLiteral("org.a11y.Status");
    return ask(bus, message, patience);
}

QDBusPendingCall askAssistanceAddress(const QDBusConnection& bus, Milliseconds patience) {
    return ask(bus, question("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress"),
               patience);
}

bool registryStaysSilent(const QString& address, Milliseconds patience) {
    const QString probe = QStringLiteral("fernwick-probe");
    const QDBusConnection bus = QDBusConnection::connectToBus(address, probe);
    const bool silent =
        staysSilent(ask(bus,
                        question("org.a11y.atspi.Registry", "/org/a11y/atspi/registry",
                                 "org.a11y.atspi.Registry", "GetRegisteredEvents"),
                        patience));
    QDBusConnection::disconnectFromBus(probe);
    return silent;
}

/// Whether assistive programs are to be served from the start.
bool isSwitchedOn(const QVariantMap& status) {
    return qEnvironmentVariableIsSet("QT_LINUX_ACCESSIBILITY_ALWAYS_ON") ||
           status.value(QStringLiteral("IsEnabled")).toBool() ||
           status.value(QStringLiteral("ScreenReaderEnabled")).toBool();
}

bool assistanceStaysSilent(const QDBusConnection& bus, const QDBusPendingCall& needs,
                           Milliseconds patience) {
    if (staysSilent(needs)) {
        return true;
    }
    const QDBusPendingReply<QVariantMap> status = needs;
    if (status.isError()) {
        return false;
    }
    const bool on = isSwitchedOn(status.value());
    // On X11 the toolkit connects to the bus of assistive programs all the same, for later.
    if (!on && QGuiApplication::platformName() != QStringLiteral("xcb")) {
        return false;
    }
    const QDBusPendingCall call = askAssistanceAddress(bus, patience);
    if (staysSilent(call)) {
        return true;
    }
    const QDBusPendingReply<QString> address = call;
    return address.isValid() && (isSilentBus(address.value().toUtf8(), patience) ||
                                 (on && registryStaysSilent(address.value(), patience)));
}

}  // namespace

SilentServices::SilentServices(Milliseconds patience)
    // Where the system has no thread left, they are asked when the answers are needed.
    : found_(std::async(std::launch::async | std::launch::deferred, find, patience)) {}

void SilentServices::leaveAlone() {
    const Found silent = found_.get();
    if (silent.menus) {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
    }
    if (silent.assistance) {
        qputenv("AT_SPI_BUS_ADDRESS", "disabled:");
    }
}

SilentServices::Found SilentServices::find(Milliseconds patience) {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        return {};
    }
    const QDBusPendingCall menus = askMenuRegistrar(bus, patience);
    const QDBusPendingCall needs = askWhoNeedsAssistance(bus, patience);
    const bool assistance = assistanceStaysSilent(bus, needs, patience);
    return {staysSilent(menus), assistance};
}
