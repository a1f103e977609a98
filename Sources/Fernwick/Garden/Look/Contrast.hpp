#pragma once

#include <QColor>
#include <QObject>

namespace Garden {

/// Whether the desktop asks programs for high contrast. One for all views, which repaints them when
/// the desktop changes its mind.
class Contrast : public QObject {
    Q_OBJECT

public:
    /// Follows the desktop from its first use on, and lives as long as the application.
    [[nodiscard]] static Contrast& shared();

    [[nodiscard]] bool isHigh() const { return high_; }

Q_SIGNALS:
    void changed();

private:
    explicit Contrast(QObject* parent);
    void follow();
    void setHigh(bool high);

    bool high_ = false;
};

/// The colour to draw quiet text or a symbol in: `colour` itself, or, where the desktop asks for
/// high contrast, an opaque one half of the way from it to white.
[[nodiscard]] QColor legible(const QColor& colour);

}  // namespace Garden
