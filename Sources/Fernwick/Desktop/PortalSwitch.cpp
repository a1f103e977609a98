#include "Desktop/PortalSwitch.hpp"

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

PortalSwitch::PortalSwitch(const QDBusConnection& bus, std::span<const Setting> settings,
                           QObject* parent)
    : QObject(parent), bus_(bus), settings_(settings) {
    // The string-based connect below looks up QDBusVariant by name.
    qRegisterMetaType<QDBusVariant>();
    // An empty service name matches any sender: with the portal's name, Qt would block on a call
    // that asks the bus for its owner.
    bus_.connect(QString(), portalPath, portalInterface, QStringLiteral("SettingChanged"), this,
                 SLOT(settingChanged(QString, QString, QDBusVariant)));
    for (std::size_t setting = 0; setting < settings_.size(); ++setting) {
        read(setting);
    }
}

void PortalSwitch::read(std::size_t setting) {
    QDBusMessage request = QDBusMessage::createMethodCall(portalService, portalPath,
                                                          portalInterface, QStringLiteral("Read"));
    request << QString::fromLatin1(settings_[setting].group)
            << QString::fromLatin1(settings_[setting].key);
    request.setAutoStartService(false);
    auto* watcher = new QDBusPendingCallWatcher(bus_.asyncCall(request), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, setting, watcher] {
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        if (reply.isValid() && !signalled_[setting]) {
            set(setting, reply.value());
        }
        watcher->deleteLater();
    });
}

void PortalSwitch::set(std::size_t setting, const QDBusVariant& value) {
    const bool wasOn = isOn();
    on_[setting] = settings_[setting].isOn(unwrapped(value.variant()));
    if (isOn() != wasOn) {
        Q_EMIT changed();
    }
}

void PortalSwitch::settingChanged(const QString& group, const QString& key,
                                  const QDBusVariant& value) {
    for (std::size_t setting = 0; setting < settings_.size(); ++setting) {
        if (group == QLatin1String(settings_[setting].group) &&
            key == QLatin1String(settings_[setting].key)) {
            signalled_[setting] = true;
            set(setting, value);
        }
    }
}

}  // namespace Desktop
