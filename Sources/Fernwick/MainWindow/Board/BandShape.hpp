#pragma once

#include <QPointF>

#include "MainWindow/Board/SnakeLinks.hpp"

/// The shape of the snake's band inside one cell.
namespace BandShape {

/// Half the band's width, in cells: parallel runs keep a gap of 0.26 cells.
inline constexpr double halfWidth = 0.37;

/// How far `point` lies from the middle line of the band, squared. `point` is counted from the
/// cell's centre, inside the cell; `links` is not none.
[[nodiscard]] double squaredDistance(Links links, const QPointF& point);

}  // namespace BandShape
