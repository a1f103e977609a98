#pragma once

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>
#include <bitset>

namespace Garden {

/// Whether the desktop's settings portal asks programs to keep still. The portal is asked without
/// waiting and is never started for it; until it answers, and where there is none, it does not.
class MotionSetting : public QObject {
    Q_OBJECT

public:
    explicit MotionSetting(const QDBusConnection& bus, QObject* parent = nullptr);

    [[nodiscard]] bool asksForStillness() const { return still_.any(); }

private:
    Q_SLOT void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);
    void ask(std::size_t setting);

    static constexpr std::size_t settingCount = 3;

    QDBusConnection bus_;
    std::bitset<settingCount> still_;
    // A change may overtake the answer to an earlier question, which is then out of date.
    std::bitset<settingCount> changed_;
};

}  // namespace Garden
