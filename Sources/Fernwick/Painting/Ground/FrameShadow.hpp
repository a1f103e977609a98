#pragma once

#include <QRect>

#include "Painting/Ground/FrameShape.hpp"
#include "Painting/Raster/FloatPlane.hpp"
#include "Painting/Raster/Upsampling.hpp"

/// The shadow that the board's frame throws on the ground. It is kept blurred at a coarse scale: a
/// few samples to a sigma hold all there is to it.
class FrameShadow {
public:
    /// Of a frame at `frame` pixels, `scale` of them to a point.
    FrameShadow(const FrameShape& shape, const QRectF& frame, double scale);

    /// The pixels that it darkens.
    [[nodiscard]] const QRect& area() const { return area_; }

    /// The rows of one rectangle within `area()`, to be asked for from top to bottom.
    class Rows {
    public:
        Rows(const FrameShadow& shadow, int x, int count);
        /// Darkens the pixels of row `y`; `row` begins at the rectangle's first one.
        void paint(quint32* row, int y);

    private:
        const FrameShadow& shadow_;
        int x_;
        int count_;
        WidenedRows<float> pair_;
    };

private:
    [[nodiscard]] int samplesAlong(int pixels) const;

    QRect area_;
    double pixelsPerSample_;
    FloatPlane plane_;
    SampleAxis columns_;
    SampleAxis rows_;
};
