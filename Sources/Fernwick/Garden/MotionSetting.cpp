#include "Garden/MotionSetting.hpp"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <array>

namespace Garden {

namespace {

constexpr QLatin1String portalService("org.freedesktop.portal.Desktop");
constexpr QLatin1String portalPath("/org/freedesktop/portal/desktop");
constexpr QLatin1String portalInterface("org.freedesktop.portal.Settings");

struct Setting {
    const char* group;
    const char* key;
    bool (*asksForStillness)(const QVariant& value);
};

// Each desktop says it in its own words; the last is the one they are agreeing on.
constexpr std::array<Setting, 3> settings{{
    {"org.gnome.desktop.interface", "enable-animations",
     [](const QVariant& value) { return value.userType() == QMetaType::Bool && !value.toBool(); }},
    {"org.kde.kdeglobals.KDE", "AnimationDurationFactor",
     [](const QVariant& value) {
         bool isNumber = false;
         return value.toDouble(&isNumber) == 0 && isNumber;
     }},
    {"org.freedesktop.appearance", "reduced-motion",
     [](const QVariant& value) { return value.toUInt() == 1; }},
}};

// A read value comes in an envelope, from older portals in two.
QVariant unwrapped(QVariant value) {
    while (value.userType() == qMetaTypeId<QDBusVariant>()) {
        value = value.value<QDBusVariant>().variant();
    }
    return value;
}

}  // namespace

MotionSetting::MotionSetting(const QDBusConnection& bus, QObject* parent)
    : QObject(parent), bus_(bus) {
    static_assert(settings.size() == settingCount);
    // Until it is known by name, no slot that takes one can be connected.
    qRegisterMetaType<QDBusVariant>();
    bus_.connect(portalService, portalPath, portalInterface, QStringLiteral("SettingChanged"), this,
                 SLOT(settingChanged(QString, QString, QDBusVariant)));
    for (std::size_t setting = 0; setting < settingCount; ++setting) {
        ask(setting);
    }
}

void MotionSetting::ask(std::size_t setting) {
    QDBusMessage question = QDBusMessage::createMethodCall(portalService, portalPath,
                                                           portalInterface, QStringLiteral("Read"));
    question << QString::fromLatin1(settings[setting].group)
             << QString::fromLatin1(settings[setting].key);
    question.setAutoStartService(false);
    auto* answer = new QDBusPendingCallWatcher(bus_.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, setting, answer] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (reply.isValid() && !changed_[setting]) {
            still_[setting] =
                settings[setting].asksForStillness(unwrapped(reply.value().variant()));
        }
        answer->deleteLater();
    });
}

void MotionSetting::settingChanged(const QString& group, const QString& key,
                                   const QDBusVariant& value) {
    for (std::size_t setting = 0; setting < settingCount; ++setting) {
        if (group == QLatin1String(settings[setting].group) &&
            key == QLatin1String(settings[setting].key)) {
            still_[setting] = settings[setting].asksForStillness(unwrapped(value.variant()));
            changed_[setting] = true;
        }
    }
}

}  // namespace Garden
