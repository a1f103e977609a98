#include "MainWindow/BusActivation.hpp"

#include <QDBusMessage>
#include <QStringList>
#include <utility>

#include "Session/ApplicationID.hpp"

namespace {

constexpr const char* path = "/org/fernwick/fernwick";

QString text(const char* latin) {
    return QString::fromLatin1(latin);
}

void askForName(const QDBusConnection& bus) {
    constexpr uint doNotQueue = 4;
    QDBusMessage question =
        QDBusMessage::createMethodCall(text("org.freedesktop.DBus"), text("/org/freedesktop/DBus"),
                                       text("org.freedesktop.DBus"), text("RequestName"));
    question << applicationID.toString() << doNotQueue;
    bus.send(question);
}

}  // namespace

BusActivation::BusActivation(QDBusConnection bus, QObject* application, BringForward bringForward)
    : QDBusAbstractAdaptor(application), bringForward_(std::move(bringForward)) {
    // The object first: whoever sees the name may call at once.
    if (bus.isConnected() && bus.registerObject(text(path), application)) {
        askForName(bus);
    }
}

void BusActivation::Activate(const QVariantMap& platformData) {
    // Desktops under Wayland give the one, those under X11 the other.
    QString token = platformData.value(text("activation-token")).toString();
    if (token.isEmpty()) {
        token = platformData.value(text("desktop-startup-id")).toString();
    }
    bringForward_(token.toUtf8());
}

void BusActivation::Open(const QStringList&, const QVariantMap& platformData) {
    Activate(platformData);
}

void BusActivation::ActivateAction(const QString&, const QVariantList&, const QVariantMap&) {}
