#include "Desktop/PortalSetting.hpp"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace Desktop {

namespace {

constexpr QLatin1String portalService("org.freedesktop.portal.Desktop");
constexpr QLatin1String portalPath("/org/freedesktop/portal/desktop");
constexpr QLatin1String portalInterface("org.freedesktop.portal.Settings");

// "Read" wraps its value in a variant, older portals in two.
QVariant unwrapped(QVariant value) {
    while (value.userType() == qMetaTypeId<QDBusVariant>()) {
        value = value.value<QDBusVariant>().variant();
    }
    return value;
}

}  // namespace

PortalSetting::PortalSetting(const QDBusConnection& bus, const char* group, const char* key,
                             QObject* parent)
    : QObject(parent),
      bus_(bus),
      group_(QString::fromLatin1(group)),
      key_(QString::fromLatin1(key)) {
    // The string-based connect below looks up QDBusVariant by name.
    qRegisterMetaType<QDBusVariant>();
    // An empty service name matches any sender: with the portal's name, Qt would block on a call
    // that asks the bus for its owner.
    bus_.connect(QString(), portalPath, portalInterface, QStringLiteral("SettingChanged"), this,
                 SLOT(settingChanged(QString, QString, QDBusVariant)));
    read();
}

void PortalSetting::read() {
    QDBusMessage request = QDBusMessage::createMethodCall(portalService, portalPath,
                                                          portalInterface, QStringLiteral("Read"));
    request << group_ << key_;
    request.setAutoStartService(false);
    auto* watcher = new QDBusPendingCallWatcher(bus_.asyncCall(request), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        if (reply.isValid() && !signalled_) {
            Q_EMIT told(unwrapped(reply.value().variant()));
        }
        watcher->deleteLater();
    });
}

void PortalSetting::settingChanged(const QString& group, const QString& key,
                                   const QDBusVariant& value) {
    if (group == group_ && key == key_) {
        signalled_ = true;
        Q_EMIT told(unwrapped(value.variant()));
    }
}

}  // namespace Desktop
