#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QVariant>
#include <bitset>
#include <span>

namespace Desktop {

/// A yes-or-no setting from the settings portal that desktops store under different keys: on if any
/// of the keys is on. It is off until the portal has replied, and without a portal.
class PortalSwitch : public QObject {
    Q_OBJECT

public:
    struct Setting {
        const char* group;  ///< the portal's "namespace" argument
        const char* key;
        bool (*isOn)(const QVariant& value);
    };

    /// At most eight `settings`.
    PortalSwitch(const QDBusConnection& bus, std::span<const Setting> settings,
                 QObject* parent = nullptr);

    [[nodiscard]] bool isOn() const { return on_.any(); }

Q_SIGNALS:
    /// `isOn` has changed.
    void changed();

private:
    static constexpr std::size_t maximumSettings = 8;

    void set(std::size_t setting, bool on);

    std::bitset<maximumSettings> on_;
};

}  // namespace Desktop
