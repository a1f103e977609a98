#pragma once

#include <QIcon>
#include <QRectF>

class QColor;
class QPainter;

namespace Garden {

/// The icons of the user interface, drawn for this program on a 24 × 24 grid.
enum class Icon {
    leafFilled,
    leaf,
    moon,
    arrowClockwise,
    arrowRight,
    trophy,
    speakerWaves,
    speakerSlash,
    pause,
    play,
    windowMinimize,
    windowMaximize,
    windowRestore,
    windowClose,
};

/// Paints `icon`, scaled to fit and centred in `rect`, in one flat colour and aligned to device
/// pixels. The trophy has thinner strokes at large sizes.
void paintIcon(QPainter& painter, Icon icon, const QRectF& rect, const QColor& colour);

/// The application icon, in the sizes that desktops use.
[[nodiscard]] QIcon applicationIcon();

}  // namespace Garden
