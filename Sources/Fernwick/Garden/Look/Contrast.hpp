#pragma once

#include <QColor>
#include <QObject>

namespace Garden {

/// The desktop's high-contrast setting, from the settings portal. A change repaints all widgets.
class Contrast : public QObject {
    Q_OBJECT

public:
    /// Created by the first call; destroyed with the application.
    [[nodiscard]] static Contrast& shared();

    /// False until the portal has replied, and if there is none.
    [[nodiscard]] bool isHigh() const { return high_; }

Q_SIGNALS:
    void changed();

private:
    explicit Contrast(QObject* parent);
    void follow();

    bool high_ = false;
};

/// The colour in which to draw secondary text or an icon: `colour`, or, with high contrast, an
/// opaque colour halfway between it and white.
[[nodiscard]] QColor legible(const QColor& colour);

}  // namespace Garden
