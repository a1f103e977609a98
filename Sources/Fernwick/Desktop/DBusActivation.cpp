#include "Desktop/DBusActivation.hpp"

#include <QDBusMessage>
#include <QStringList>
#include <utility>

namespace Desktop {

DBusActivation::DBusActivation(QDBusConnection bus, const QString& applicationID,
                               QObject* application, Activated activated)
    : QDBusAbstractAdaptor(application), activated_(std::move(activated)) {
    const QString path = u'/' + QString(applicationID).replace(u'.', u'/');
    // Register the object before the name: clients may call as soon as they see the name.
    if (bus.isConnected() && bus.registerObject(path, application)) {
        constexpr uint doNotQueue = 4;  // DBUS_NAME_FLAG_DO_NOT_QUEUE
        QDBusMessage request = QDBusMessage::createMethodCall(
            QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
            QStringLiteral("org.freedesktop.DBus"), QStringLiteral("RequestName"));
        bus.send(request << applicationID << doNotQueue);
    }
}

void DBusActivation::Activate(const QVariantMap& platformData) {
    // Wayland desktops send the first key, X11 desktops the second.
    QString token = platformData.value(QStringLiteral("activation-token")).toString();
    if (token.isEmpty()) {
        token = platformData.value(QStringLiteral("desktop-startup-id")).toString();
    }
    activated_(token.toUtf8());
}

void DBusActivation::Open(const QStringList&, const QVariantMap& platformData) {
    Activate(platformData);
}

void DBusActivation::ActivateAction(const QString&, const QVariantList&, const QVariantMap&) {}

}  // namespace Desktop
