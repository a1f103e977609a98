#include "Painting/Raster/Composing.hpp"

#include <QPaintEngine>
#include <QTransform>
#include <cmath>

namespace {

// Products of a scale and its inverse are only nearly 1.
constexpr double tolerance = 1e-6;

bool isNearly(double value, double expected) {
    return std::abs(value - expected) < tolerance;
}

// The translation by whole pixels that `transform` is.
std::optional<QPoint> wholeTranslation(const QTransform& transform) {
    const QPoint offset(qRound(transform.dx()), qRound(transform.dy()));
    const bool isTranslation = transform.isAffine() && isNearly(transform.m11(), 1) &&
                               isNearly(transform.m22(), 1) && isNearly(transform.m12(), 0) &&
                               isNearly(transform.m21(), 0);
    const bool isWhole = std::abs(transform.dx() - offset.x()) < 0.01 &&
                         std::abs(transform.dy() - offset.y()) < 0.01;
    return isTranslation && isWhole ? std::optional(offset) : std::nullopt;
}

bool isOpaque32Bit(QImage::Format format) {
    return format == QImage::Format_RGB32 || format == QImage::Format_ARGB32_Premultiplied;
}

}  // namespace

std::optional<Painting::PaintedMemory> Painting::paintedMemory(const QPainter& painter,
                                                               const QRect& area) {
    const QPaintEngine* const engine = painter.paintEngine();
    QPaintDevice* const device = engine->paintDevice();
    if (engine->type() != QPaintEngine::Raster || device->devType() != QInternal::Image ||
        painter.opacity() != 1 ||
        painter.compositionMode() != QPainter::CompositionMode_SourceOver) {
        return std::nullopt;
    }
    auto* const image = static_cast<QImage*>(device);
    const auto offset = wholeTranslation(painter.deviceTransform());
    if (!offset || !isOpaque32Bit(image->format())) {
        return std::nullopt;
    }
    QRegion region = image->rect() & area.translated(*offset);
    const QRegion& clip = engine->systemClip();
    if (!clip.isEmpty()) {
        region &= clip;
    }
    return PaintedMemory{image, *offset, region.translated(-*offset)};
}
