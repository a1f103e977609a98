#pragma once

#include <QPointF>
#include <QRect>
#include <cstdint>

/// The colour along the band: a deeper green at the tail, mint at the head, by the place between
/// the two ends however the snake winds.
class BandGradient {
public:
    /// The centres of the two end cells, in pixels; they differ.
    BandGradient(const QPointF& tail, const QPointF& head);

    /// Lays the band over one row of the ground: `count` pixels from (x, y) on, each covered as
    /// far as `mask` says. `row` and `ground` are different memory.
    void paintRow(quint32* row, const quint32* ground, const std::uint8_t* mask, int count, int x,
                  int y) const;

private:
    QPointF tail_;
    // How much nearer to the head one pixel in either direction brings, of the whole way.
    QPointF slope_;
};
