#include "Painting/Ground/FrameShadow.hpp"

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "Painting/Raster/PixelKernels.hpp"

namespace {

constexpr float opacity = 0.25F;
/// In points: the blur and how far below the frame the shadow lies.
constexpr double sigma = 25;
constexpr double drop = 15;

constexpr double samplesPerSigma = 4;
// Beyond this many sigmas it has faded.
constexpr double extent = 3;

SampleAxis axis(int pixels, int samples, double pixelsPerSample) {
    const double step = 1 / pixelsPerSample;
    return {pixels, samples, step, 0.5 * step - 0.5};
}

}  // namespace

FrameShadow::FrameShadow(const FrameShape& shape, const QRectF& frame, double scale)
    : area_(frame.translated(0, drop * scale)
                .marginsAdded(QMarginsF() + extent * sigma * scale)
                .toAlignedRect()),
      pixelsPerSample_(sigma * scale / samplesPerSigma),
      plane_(samplesAlong(area_.width()), samplesAlong(area_.height())),
      columns_(axis(area_.width(), plane_.width, pixelsPerSample_)),
      rows_(axis(area_.height(), plane_.height, pixelsPerSample_)) {
    QImage mask(plane_.width, plane_.height, QImage::Format_Alpha8);
    mask.fill(0);
    QPainter painter(&mask);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(1 / pixelsPerSample_, 1 / pixelsPerSample_);
    painter.translate(QPointF(0, drop * scale) - area_.topLeft());
    painter.fillPath(shape.path(), Qt::black);
    painter.end();
    for (int y = 0; y < plane_.height; ++y) {
        std::transform(mask.constScanLine(y), mask.constScanLine(y) + plane_.width, plane_.row(y),
                       [](uchar value) { return value / 255.0F; });
    }
    blur(plane_, samplesPerSigma);
}

int FrameShadow::samplesAlong(int pixels) const {
    return static_cast<int>(std::ceil(pixels / pixelsPerSample_)) + 1;
}

FrameShadow::Rows::Rows(const FrameShadow& shadow, int x, int count)
    : shadow_(shadow),
      x_(x),
      count_(count),
      pair_(shadow.plane_.values.data(), shadow.plane_.width, shadow.columns_,
            x - shadow.area_.left(), count) {}

void FrameShadow::Rows::paint(quint32* row, int y) {
    const auto [sample, below] = shadow_.rows_[y - shadow_.area_.top()];
    pair_.seek(sample);
    pixelKernels().mixBetween(
        row, count_, Pixels::phase(x_, y), Rgb{},
        {pair_.upper(), pair_.lower(), (1 - below) * opacity, below * opacity});
}
