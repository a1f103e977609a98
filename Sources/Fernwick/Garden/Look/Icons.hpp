#pragma once

#include <QIcon>
#include <QRectF>

class QColor;
class QPainter;

namespace Garden {

/// The symbols of the program, all drawn by one hand on a 24 × 24 grid.
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

/// Paints `icon` into `rect` (its whole grid, fitted and centred) in one flat colour, on whole
/// device pixels. Symbols shown large have a finer cut than the same symbol in a button.
void paintIcon(QPainter& painter, Icon icon, const QRectF& rect, const QColor& colour);

/// The program's own icon, at the sizes desktops ask for.
[[nodiscard]] QIcon applicationIcon();

}  // namespace Garden
