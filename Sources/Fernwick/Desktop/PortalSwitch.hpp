#pragma once

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>
#include <QVariant>
#include <bitset>
#include <span>

namespace Desktop {

/// A yes-or-no setting from the XDG settings portal (org.freedesktop.portal.Settings) that desktops
/// store under different keys: on if any of the keys is on. Reads are asynchronous and never
/// start the portal; it is off until a reply arrives, and without a portal.
class PortalSwitch : public QObject {
    Q_OBJECT

public:
    struct Setting {
        const char* group;  ///< the portal's "namespace" argument
        const char* key;
        bool (*isOn)(const QVariant& value);
    };

    /// `settings`, at most eight, must outlive this object.
    PortalSwitch(const QDBusConnection& bus, std::span<const Setting> settings,
                 QObject* parent = nullptr);

    [[nodiscard]] bool isOn() const { return on_.any(); }

Q_SIGNALS:
    /// `isOn` has changed.
    void changed();

private:
    Q_SLOT void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);
    void read(std::size_t setting);
    void set(std::size_t setting, const QDBusVariant& value);

    static constexpr std::size_t maximumSettings = 8;

    QDBusConnection bus_;
    std::span<const Setting> settings_;
    std::bitset<maximumSettings> on_;
    // A change signal may overtake the reply to an earlier read, which is then out of date.
    std::bitset<maximumSettings> signalled_;
};

}  // namespace Desktop
