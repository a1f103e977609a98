#include "Desktop/DBusActivation.hpp"

#include <QDBusMessage>
#include <QStringList>
#include <utility>

#include "Desktop/X11StartupNotification.hpp"

namespace Desktop {

namespace {

QByteArray tokenIn(const QVariantMap& platformData) {
    // Wayland desktops send the first key, X11 desktops the second.
    QString token = platformData.value(QStringLiteral("activation-token")).toString();
    if (token.isEmpty()) {
        token = platformData.value(QStringLiteral("desktop-startup-id")).toString();
    }
    return token.toUtf8();
}

}  // namespace

DBusActivation::DBusActivation(QDBusConnection bus, const QString& applicationID,
                               QObject* application, Activated activated,
                               QMap<QString, Activated> actions)
    : QDBusAbstractAdaptor(application),
      activated_(std::move(activated)),
      actions_(std::move(actions)) {
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
    const QByteArray token = tokenIn(platformData);
    activated_(token);
    endX11StartupNotification(token);
}

void DBusActivation::Open(const QStringList&, const QVariantMap& platformData) {
    Activate(platformData);
}

void DBusActivation::ActivateAction(const QString& action, const QVariantList&,
                                    const QVariantMap& platformData) {
    if (const Activated& run = actions_.value(action)) {
        const QByteArray token = tokenIn(platformData);
        run(token);
        endX11StartupNotification(token);
    }
}

}  // namespace Desktop
