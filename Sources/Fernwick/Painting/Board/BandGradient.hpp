#pragma once

#include <QPointF>
#include <array>
#include <cstdint>

#include "Painting/Raster/Pixels.hpp"

namespace Painting {

/// The colour of the band: a linear gradient from deep green at the tail's centre to mint at the
/// head's, regardless of the snake's path between them. A pixel depends only on its position, not
/// on the scanline that it is painted with.
class BandGradient {
public:
    /// The centres of the tail's and the head's cell, in pixels; they differ.
    BandGradient(const QPointF& tail, const QPointF& head);

    /// Fills a scanline with the band over `ground`. `mask` is the band's coverage of each pixel,
    /// from 0 to 255. The three do not overlap in memory.
    void paint(const Scanline& line, const quint32* ground, const std::uint8_t* mask) const;

private:
    // Red, green and blue in 16.16 fixed point: from pixel to pixel each changes by a constant, and
    // adding integers is exact however the row is split up.
    using FixedRgb = std::array<std::int32_t, 3>;

    // One row: `before` up to column `begin`, the gradient up to `end`, `after` from there.
    struct Stops {
        int begin;
        int end;
        quint32 before;
        quint32 after;
    };

    [[nodiscard]] Stops stopsOf(int y) const;
    void fill(const Scanline& line, const Stops& stops) const;

    QPointF tail_;
    // How far one pixel in x and y brings one from the tail (0) to the head (1).
    QPointF slope_;
    FixedRgb origin_{};
    FixedRgb perColumn_{};
    FixedRgb perRow_{};
};

}  // namespace Painting
