#include "Painting/Ground/Backdrop.hpp"

#include <QGuiApplication>
#include <algorithm>
#include <cmath>

#include "Garden/Look/Palette.hpp"
#include "Painting/Raster/Pixels.hpp"

namespace {

using Painting::Scanline;

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
    Painting::blendColour(line.part(begin, end), Painting::Rgb::of(Garden::mint),
                          [first = static_cast<float>(begin - corner) + 0.5F,
                           square = static_cast<float>(below * below),
                           perPixel = static_cast<float>(1 / radius)](int i) {
                              const float across = first + static_cast<float>(i);
                              const float distance = std::sqrt(across * across + square);
                              return std::max(1 - distance * perPixel, 0.0F) * lightOpacity;
                          });
}

}  // namespace

namespace Painting {

/// Composes the rows of one rectangle, from top to bottom.
class Backdrop::Rows {
public:
    Rows(const Backdrop& ground, const QRect& area)
        : ground_(ground),
          lightCorner_(QGuiApplication::isRightToLeft() ? ground.bounds_.width() : 0) {
        if (ground.shadow_) {
            shadow_.emplace(*ground.shadow_, area);
        }
    }

    void operator()(const Scanline& line) {
        line.fill(Garden::night.rgb());
        paintLight(line, lightCorner_, ground_.scale_);
        if (shadow_) {
            shadow_->paint(line);
        }
        for (const QRect& inside : ground_.inside_) {
            line.clipped(inside).fill(Garden::soil.rgb());
        }
        for (const Edge& edge : ground_.edges_) {
            paintEdge(line.clipped(edge.area), edge);
        }
    }

private:
    static void paintEdge(const Scanline& line, const Edge& edge) {
        if (line.count == 0) {
            return;
        }
        const QPoint place = QPoint(line.x, line.y) - edge.area.topLeft();
        const auto blend = [&](const QColor& colour, const QImage& mask, float opacity) {
            const uchar* const coverage = mask.constScanLine(place.y()) + place.x();
            blendColour(line, Rgb::of(colour),
                        [=](int i) { return static_cast<float>(coverage[i]) * opacity / 255; });
        };
        blend(Garden::soil, edge.fill, 1);
        blend(Garden::mint, edge.stroke, static_cast<float>(FrameShape::strokeOpacity));
    }

    const Backdrop& ground_;
    int lightCorner_;
    std::optional<FrameShadow::Rows> shadow_;
};

void Backdrop::fit(const QSize& window, qreal devicePixelRatio, const QRectF& frame) {
    if (window == window_ && devicePixelRatio == scale_ && frame == frame_) {
        return;
    }
    ++revision_;
    prepared_ = false;
    window_ = window;
    scale_ = devicePixelRatio;
    frame_ = frame;
    const QSizeF pixels = QSizeF(window) * devicePixelRatio;
    bounds_ = {0, 0, static_cast<int>(std::ceil(pixels.width())),
               static_cast<int>(std::ceil(pixels.height()))};
}

void Backdrop::paint(QPainter& painter, const QRect& area) {
    QImage buffer(area.width(), std::min(area.height(), rowsPerBatch), QImage::Format_RGB32);
    drawComposed(painter, area, buffer, rowsOf(area));
}

QImage Backdrop::image(const QRect& area) {
    return composedImage(area, rowsOf(area));
}

Backdrop::Rows Backdrop::rowsOf(const QRect& area) {
    if (!prepared_) {
        prepareFrame();
        prepared_ = true;
    }
    return Rows(*this, area);
}

void Backdrop::prepareFrame() {
    shadow_.reset();
    edges_.clear();
    inside_ = {};
    const QRectF place(frame_.topLeft() * scale_, frame_.size() * scale_);
    if (place.isEmpty()) {
        return;
    }
    const FrameShape shape(place, scale_);
    shadow_.emplace(shape, place, scale_);
    inside_ = shape.bounds();
    for (const QRect& area : shape.edges()) {
        inside_ -= area;
        edges_.push_back({area, shape.fill(area), shape.stroke(area)});
    }
}

}  // namespace Painting
