#include "Painting/Ground/FrameShadow.hpp"

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "Painting/Raster/GaussianBlur.hpp"
#include "Painting/Raster/PixelKernels.hpp"

namespace {

constexpr float opacity = 0.25F;
/// In points: the blur, and the offset below the frame.
constexpr double sigma = 25;
constexpr double offset = 15;

constexpr double samplesPerSigma = 4;
// Beyond this many sigmas the shadow is invisible.
constexpr double extent = 3;

}  // namespace

namespace Painting {

FrameShadow::FrameShadow(const FrameShape& shape, const QRectF& frame, double scale)
    : area_(frame.translated(0, offset * scale)
                .marginsAdded(QMarginsF() + extent * sigma * scale)
                .toAlignedRect()),
      pixelsPerSample_(sigma * scale / samplesPerSigma),
      samples_(samplesAlong(area_.width()), samplesAlong(area_.height())),
      columns_(area_.width(), samples_.width(), pixelsPerSample_),
      rows_(area_.height(), samples_.height(), pixelsPerSample_) {
    QImage mask(samples_.width(), samples_.height(), QImage::Format_Alpha8);
    mask.fill(0);
    QPainter painter(&mask);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(1 / pixelsPerSample_, 1 / pixelsPerSample_);
    painter.translate(QPointF(0, offset * scale) - area_.topLeft());
    painter.fillPath(shape.path(), Qt::black);
    painter.end();
    for (int y = 0; y < samples_.height(); ++y) {
        std::transform(mask.constScanLine(y), mask.constScanLine(y) + samples_.width(),
                       samples_.row(y), [](uchar value) { return value / 255.0F; });
    }
    gaussianBlur({&samples_, 1}, samplesPerSigma);
}

int FrameShadow::samplesAlong(int pixels) const {
    return static_cast<int>(std::ceil(pixels / pixelsPerSample_)) + 1;
}

FrameShadow::Rows::Rows(const FrameShadow& shadow, const QRect& area)
    : shadow_(shadow),
      area_(shadow.area_ & area),
      samples_(shadow.samples_, shadow.columns_, area_.left() - shadow.area_.left(),
               std::max(area_.width(), 0)) {}

void FrameShadow::Rows::paint(const Scanline& line) {
    const Scanline part = line.clipped(area_);
    if (part.count == 0) {
        return;
    }
    const auto [sample, weight] = shadow_.rows_[part.y - shadow_.area_.top()];
    samples_.seek(sample);
    const int first = part.x - area_.left();
    pixelKernels().blendBilinear(part, Rgb{},
                                 {samples_.upper() + first, samples_.lower() + first,
                                  (1 - weight) * opacity, weight * opacity});
}

}  // namespace Painting
