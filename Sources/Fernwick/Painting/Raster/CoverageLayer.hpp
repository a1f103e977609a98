#pragma once

#include <QImage>
#include <QRect>
#include <algorithm>
#include <vector>

#include "Painting/Raster/Pixels.hpp"

/// How strongly one colour covers each pixel of a small rectangle; made once, painted often.
class CoverageLayer {
public:
    CoverageLayer() = default;

    /// `coverage(x, y)` is asked for every pixel of `bounds`; from 0 to 1.
    template <typename Function>
    CoverageLayer(const QRect& bounds, Function coverage) : bounds_(bounds) {
        values_.reserve(static_cast<std::size_t>(bounds.width()) *
                        static_cast<std::size_t>(bounds.height()));
        for (int y = bounds.top(); y <= bounds.bottom(); ++y) {
            for (int x = bounds.left(); x <= bounds.right(); ++x) {
                values_.push_back(static_cast<float>(coverage(x, y)));
            }
        }
    }

    [[nodiscard]] const QRect& bounds() const { return bounds_; }

    /// Lays `colour` over what of the layer lies inside `area`, itself inside the picture.
    void paint(QImage& picture, const QRect& area, const Rgb& colour) const {
        const QRect part = bounds_ & area;
        for (int y = part.top(); y <= part.bottom(); ++y) {
            auto* const row = reinterpret_cast<quint32*>(picture.scanLine(y)) + part.left();
            paintRow(row, part.left(), part.width(), y, colour);
        }
    }

    /// Lays `colour` over what of the layer lies in one row: `count` pixels from (x, y) on.
    void paintRow(quint32* row, int x, int count, int y, const Rgb& colour) const {
        if (y < bounds_.top() || y > bounds_.bottom()) {
            return;
        }
        const int begin = std::max(bounds_.left(), x);
        const int end = std::min(bounds_.right() + 1, x + count);
        if (begin >= end) {
            return;
        }
        const float* const values =
            values_.data() + static_cast<std::ptrdiff_t>(y - bounds_.top()) * bounds_.width() +
            (begin - bounds_.left());
        Pixels::mixRow(row + (begin - x), end - begin, Pixels::phase(begin, y), colour,
                       [values](int i) { return values[i]; });
    }

private:
    QRect bounds_;
    std::vector<float> values_;
};
