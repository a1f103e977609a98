#pragma once

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>
#include <QVariant>
#include <bitset>
#include <span>

namespace Desktop {

/// Whether the desktop's settings portal says yes to any of several settings. The portal is asked
/// without waiting and is never started for it; until it answers, and where there is none, the
/// answer is no.
class PortalSwitch : public QObject {
    Q_OBJECT

public:
    struct Setting {
        const char* group;
        const char* key;
        bool (*saysYes)(const QVariant& value);
    };

    /// `settings`, eight at most, must outlive the switch.
    PortalSwitch(const QDBusConnection& bus, std::span<const Setting> settings,
                 QObject* parent = nullptr);

    [[nodiscard]] bool isOn() const { return said_.any(); }

Q_SIGNALS:
    /// `isOn` is not what it was.
    void changed();

private:
    Q_SLOT void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);
    void ask(std::size_t setting);
    void hear(std::size_t setting, const QDBusVariant& value);

    static constexpr std::size_t mostSettings = 8;

    QDBusConnection bus_;
    std::span<const Setting> settings_;
    std::bitset<mostSettings> said_;
    // A change may overtake the answer to an earlier question, which is then out of date.
    std::bitset<mostSettings> changed_;
};

}  // namespace Desktop
