#include "Painting/Ground/Backdrop.hpp"

#include <QGuiApplication>
#include <algorithm>
#include <cmath>

#include "Garden/Look/Palette.hpp"
#include "Painting/Raster/Composing.hpp"
#include "Painting/Raster/PixelKernels.hpp"

namespace Painting {
namespace {

constexpr float lightOpacity = 0.075F;
/// In points, from the corner where the light starts.
constexpr double lightRadius = 800;

// The light around (`corner`, 0), which fades linearly.
void paintLight(const Scanline& line, int corner, double scale) {
    const double radius = lightRadius * scale;
    const double below = line.y + 0.5;
    if (below >= radius) {
        return;
    }
    const int reach = static_cast<int>(std::ceil(std::sqrt(radius * radius - below * below)));
    const int begin = std::max(line.x, corner - reach);
    const int end = std::min(line.x + line.count, corner + reach);
    if (begin >= end) {
        return;
    }
    pixelKernels().blendLight(
        line.part(begin, end), Rgb::of(Garden::mint),
        {static_cast<float>(begin - corner) + 0.5F, static_cast<float>(below * below),
         static_cast<float>(1 / radius), lightOpacity});
}

// `mask` is the coverage of each pixel from 0 to 255; its first pixel lies at `corner`.
void paintMask(const Scanline& line, const QColor& colour, const QImage& mask, const QPoint& corner,
               float opacity) {
    if (line.count > 0) {
        const uchar* const coverage = mask.constScanLine(line.y - corner.y()) + line.x - corner.x();
        blendColour(line, Rgb::of(colour),
                    [=](int i) { return static_cast<float>(coverage[i]) * opacity / 255; });
    }
}

}  // namespace

void Backdrop::fit(const QSize& window, qreal devicePixelRatio, const QRectF& frame,
                   double strokeOpacity) {
    if (window == window_ && devicePixelRatio == scale_ && frame == frame_ &&
        strokeOpacity == strokeOpacity_) {
        return;
    }
    ++revision_;
    prepared_ = false;
    window_ = window;
    scale_ = devicePixelRatio;
    frame_ = frame;
    strokeOpacity_ = strokeOpacity;
    const QSizeF pixels = QSizeF(window) * devicePixelRatio;
    bounds_ = {0, 0, static_cast<int>(std::ceil(pixels.width())),
               static_cast<int>(std::ceil(pixels.height()))};
}

void Backdrop::paint(QPainter& painter, const QRect& area) {
    drawComposed(painter, area, rowsOf(area));
}

QImage Backdrop::image(const QRect& area) {
    return composedImage(area, rowsOf(area));
}

const std::vector<Backdrop::Edge>& Backdrop::edges() {
    prepare();
    return edges_;
}

std::function<void(const Scanline&)> Backdrop::rowsOf(const QRect& area) {
    prepare();
    std::optional<FrameShadow::Rows> shadow;
    if (shadow_) {
        shadow.emplace(*shadow_, area);
    }
    const int lightCorner = QGuiApplication::isRightToLeft() ? bounds_.width() : 0;
    return [this, lightCorner, shadow](const Scanline& line) mutable {
        line.fill(Garden::night.rgb());
        paintLight(line, lightCorner, scale_);
        if (shadow) {
            shadow->paint(line);
        }
        for (const QRect& inside : inside_) {
            line.clipped(inside).fill(Garden::soil.rgb());
        }
        for (const Edge& edge : edges_) {
            const QPoint corner = edge.area.topLeft();
            paintMask(line.clipped(edge.area), Garden::soil, edge.fill, corner, 1);
            paintMask(line.clipped(edge.area), Garden::mint, edge.stroke, corner,
                      static_cast<float>(strokeOpacity_));
        }
    };
}

void Backdrop::prepare() {
    if (!prepared_) {
        prepareFrame();
        prepared_ = true;
    }
}

void Backdrop::prepareFrame() {
    shadow_.reset();
    edges_.clear();
    inside_ = {};
    const QRectF frameRect(frame_.topLeft() * scale_, frame_.size() * scale_);
    if (frameRect.isEmpty()) {
        return;
    }
    const FrameShape shape(frameRect, scale_);
    shadow_.emplace(shape, frameRect, scale_);
    inside_ = shape.bounds();
    for (const QRect& area : shape.edges()) {
        inside_ -= area;
        edges_.push_back({area, shape.fill(area), shape.stroke(area)});
    }
}

}  // namespace Painting
