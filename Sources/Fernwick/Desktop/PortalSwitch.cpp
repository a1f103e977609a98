#include "Desktop/PortalSwitch.hpp"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace Desktop {

namespace {

constexpr QLatin1String portalService("org.freedesktop.portal.Desktop");
constexpr QLatin1String portalPath("/org/freedesktop/portal/desktop");
constexpr QLatin1String portalInterface("org.freedesktop.portal.Settings");

// A read value comes in an envelope, from older portals in two.
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
    // Until it is known by name, no slot that takes one can be connected.
    qRegisterMetaType<QDBusVariant>();
    // From whoever says it at the portal's place: a subscription to one sender would first wait for
    // the bus to tell who that is.
    bus_.connect(QString(), portalPath, portalInterface, QStringLiteral("SettingChanged"), this,
                 SLOT(settingChanged(QString, QString, QDBusVariant)));
    for (std::size_t setting = 0; setting < settings_.size(); ++setting) {
        ask(setting);
    }
}

void PortalSwitch::ask(std::size_t setting) {
    QDBusMessage question = QDBusMessage::createMethodCall(portalService, portalPath,
                                                           portalInterface, QStringLiteral("Read"));
    question << QString::fromLatin1(settings_[setting].group)
             << QString::fromLatin1(settings_[setting].key);
    question.setAutoStartService(false);
    auto* answer = new QDBusPendingCallWatcher(bus_.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, setting, answer] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (reply.isValid() && !changed_[setting]) {
            hear(setting, reply.value());
        }
        answer->deleteLater();
    });
}

void PortalSwitch::hear(std::size_t setting, const QDBusVariant& value) {
    const bool wasOn = isOn();
    said_[setting] = settings_[setting].saysYes(unwrapped(value.variant()));
    if (isOn() != wasOn) {
        Q_EMIT changed();
    }
}

void PortalSwitch::settingChanged(const QString& group, const QString& key,
                                  const QDBusVariant& value) {
    for (std::size_t setting = 0; setting < settings_.size(); ++setting) {
        if (group == QLatin1String(settings_[setting].group) &&
            key == QLatin1String(settings_[setting].key)) {
            changed_[setting] = true;
            hear(setting, value);
        }
    }
}

}  // namespace Desktop
