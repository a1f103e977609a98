#pragma once

#include <QImage>
#include <QRect>
#include <algorithm>

namespace Painting {

/// A horizontal run of 32-bit pixels: `count` of them, the first at (x, y) of the picture.
struct Scanline {
    quint32* pixels;
    int x;
    int y;
    int count;

    /// The pixels of columns `begin` (inclusive) to `end` (exclusive), which must lie in the run.
    [[nodiscard]] Scanline part(int begin, int end) const {
        return {pixels + (begin - x), begin, y, end - begin};
    }
    /// The pixels inside `area`; `count` is 0 if there are none.
    [[nodiscard]] Scanline clipped(const QRect& area) const {
        const int begin = std::max(x, area.left());
        const int end = std::min(x + count, area.left() + area.width());
        const bool overlaps = begin < end && y >= area.top() && y <= area.bottom();
        return overlaps ? part(begin, end) : part(x, x);
    }
    void fill(quint32 pixel) const { std::fill_n(pixels, count, pixel); }
};

/// The pixels of `image` from (x, y) to the end of the row. The image has 32 bits per pixel.
[[nodiscard]] inline const quint32* pixelsAt(const QImage& image, int x, int y) {
    return reinterpret_cast<const quint32*>(image.constScanLine(y)) + x;
}

/// Row `y` of `area`, which lies in `image`. The image has 32 bits per pixel.
[[nodiscard]] inline Scanline scanline(QImage& image, const QRect& area, int y) {
    auto* const pixels = reinterpret_cast<quint32*>(image.scanLine(y));
    return {pixels + area.left(), area.left(), y, area.width()};
}

}  // namespace Painting
