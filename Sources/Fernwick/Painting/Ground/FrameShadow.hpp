#pragma once

#include <QRect>

#include "Painting/Ground/FrameShape.hpp"
#include "Painting/Raster/Scanline.hpp"
#include "Painting/Raster/Upsampling.hpp"

namespace Painting {

/// The drop shadow of the board's frame on the backdrop. It is blurred at low resolution, a few
/// samples per sigma, which holds all the detail of a blurred shape, and upsampled when painted.
class FrameShadow {
public:
    /// `frame` is in device pixels; `scale` is device pixels per point.
    FrameShadow(const FrameShape& shape, const QRectF& frame, double scale);

    /// Paints the rows of one rectangle, from top to bottom.
    class Rows {
    public:
        Rows(const FrameShadow& shadow, const QRect& area);
        /// Darkens the part of a row of the rectangle that lies in the shadow.
        void paint(const Scanline& line);

    private:
        const FrameShadow& shadow_;
        QRect area_;
        UpsampledRows<float> samples_;
    };

private:
    [[nodiscard]] int samplesAlong(int pixels) const;

    QRect area_;  ///< the device pixels that it darkens
    double pixelsPerSample_;
    Plane<float> samples_;
    SampleAxis columns_;
    SampleAxis rows_;
};

}  // namespace Painting
