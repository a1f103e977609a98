#pragma once

#include <QObject>
#include <QVariant>

namespace Garden {

/// How much larger than their full size the desktop wants texts to be: GNOME's text-scaling factor,
/// from the settings portal.
///
/// Followed only on Wayland, and only where no font resolution is set. On X11, GNOME multiplies
/// Xft.dpi by the factor, and Qt turns that, as it does QT_FONT_DPI, into a device pixel ratio that
/// enlarges everything.
class TextScale : public QObject {
    Q_OBJECT

public:
    /// Created by the first call; destroyed with the application.
    [[nodiscard]] static TextScale& shared();

    /// From 1 to 3. 1 until the portal has replied, and if there is none.
    [[nodiscard]] double factor() const { return factor_; }
    void setFactor(double factor);

Q_SIGNALS:
    void changed();

private:
    explicit TextScale(QObject* parent);
    void follow();

    double factor_ = 1;
};

/// The factor for this value of the desktop's setting. 1 if it is not a number from 0.5 to 3, which
/// GNOME allows, or below 1: the smallest texts have the smallest legible size already.
[[nodiscard]] double textScaleFor(const QVariant& setting);

}  // namespace Garden
