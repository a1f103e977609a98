#pragma once

#include <QImage>
#include <SnakeCore/Game.hpp>

/// Paints `game` the straightforward way on a transparent ground: every step at full size.
/// `size` and the result are in pixels, `cell` in points, `origin` is the grid's corner in points.
[[nodiscard]] QImage paintPlainly(const SnakeCore::Game& game, const QSize& size, double cell,
                                  const QPointF& origin, double devicePixelRatio);

/// Blurs with a Gaussian of `sigma` pixels, near enough: three box blurs. Premultiplied colours.
void blurPlainly(QImage& image, double sigma);
