#include "Desktop/PortalSwitch.hpp"

#include "Desktop/PortalSetting.hpp"

namespace Desktop {

PortalSwitch::PortalSwitch(const QDBusConnection& bus, std::span<const Setting> settings,
                           QObject* parent)
    : QObject(parent) {
    for (std::size_t index = 0; index < settings.size(); ++index) {
        const Setting& setting = settings[index];
        auto* value = new PortalSetting(bus, setting.group, setting.key, this);
        connect(
            value, &PortalSetting::told, this,
            [this, index, isOn = setting.isOn](const QVariant& told) { set(index, isOn(told)); });
    }
}

void PortalSwitch::set(std::size_t setting, bool on) {
    const bool wasOn = isOn();
    on_[setting] = on;
    if (isOn() != wasOn) {
        Q_EMIT changed();
    }
}

}  // namespace Desktop
