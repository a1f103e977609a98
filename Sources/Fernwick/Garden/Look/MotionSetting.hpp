#pragma once

#include "Desktop/PortalSwitch.hpp"

namespace Garden {

/// Whether the desktop asks programs to keep still.
class MotionSetting : public Desktop::PortalSwitch {
    Q_OBJECT

public:
    explicit MotionSetting(const QDBusConnection& bus, QObject* parent = nullptr);

    [[nodiscard]] bool asksForStillness() const { return isOn(); }
};

}  // namespace Garden
