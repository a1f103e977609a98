#include "Desktop/DBusActivation.hpp"

#include <QDBusMessage>
#include <QStringList>
#include <utility>

namespace {

QString text(const char* latin) {
    return QString::fromLatin1(latin);
}

void requestName(const QDBusConnection& bus, const QString& name) {
    constexpr uint doNotQueue = 4;
    QDBusMessage question =
        QDBusMessage::createMethodCall(text("org.freedesktop.DBus"), text("/org/freedesktop/DBus"),
                                       text("org.freedesktop.DBus"), text("RequestName"));
    question << name << doNotQueue;
    bus.send(question);
}

}  // namespace

DBusActivation::DBusActivation(QDBusConnection bus, const QString& applicationID,
                               QObject* application, BringForward bringForward)
    : QDBusAbstractAdaptor(application), bringForward_(std::move(bringForward)) {
    const QString path = u'/' + QString(applicationID).replace(u'.', u'/');
    // The object first: a program that sees the name may call at once.
    if (bus.isConnected() && bus.registerObject(path, application)) {
        requestName(bus, applicationID);
    }
}

void DBusActivation::Activate(const QVariantMap& platformData) {
    // Desktops under Wayland give the one, those under X11 the other.
    QString token = platformData.value(text("activation-token")).toString();
    if (token.isEmpty()) {
        token = platformData.value(text("desktop-startup-id")).toString();
    }
    bringForward_(token.toUtf8());
}

void DBusActivation::Open(const QStringList&, const QVariantMap& platformData) {
    Activate(platformData);
}

void DBusActivation::ActivateAction(const QString&, const QVariantList&, const QVariantMap&) {}
