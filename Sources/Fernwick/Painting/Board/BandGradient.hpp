#pragma once

#include <QPointF>
#include <array>
#include <cstdint>

#include "Painting/Raster/Pixels.hpp"

/// The colour along the band: a deeper green at the tail, mint at the head, by the place between
/// the two ends however the snake winds. What it paints on a pixel depends on that pixel alone and
/// not on the row it is painted with.
class BandGradient {
public:
    /// The centres of the two end cells, in pixels; they differ.
    BandGradient(const QPointF& tail, const QPointF& head);

    /// Lays the band over one row of the ground: `count` pixels from (x, y) on, each covered as
    /// far as `mask` says. `row` and `ground` are different memory.
    void paintRow(quint32* row, const quint32* ground, const std::uint8_t* mask, int count, int x,
                  int y) const;

private:
    // A channel as a whole number of 2^-16 steps; so it grows by the same amount each pixel, and a
    // loop that only adds is the fastest there is.
    using Fixed = std::array<std::int32_t, 3>;

    // One row: even up to `begin`, growing up to `end`, even from there.
    struct Row {
        int begin;
        int end;
        quint32 before;
        quint32 after;
    };

    [[nodiscard]] Row across(int y) const;
    void fill(quint32* pixels, int count, int x, int y, const Row& row) const;
    void fillSlope(quint32* pixels, int count, int x, int y) const;

    QPointF tail_;
    // How much nearer to the head one pixel in either direction brings, of the whole way.
    QPointF slope_;
    Fixed origin_{};
    Fixed right_{};
    Fixed down_{};
};
