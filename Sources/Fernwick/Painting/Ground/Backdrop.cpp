#include "Painting/Ground/Backdrop.hpp"

#include <QGuiApplication>
#include <algorithm>
#include <cmath>

#include "Garden/Look/Palette.hpp"
#include "Painting/Raster/Pixels.hpp"
#include "Painting/Raster/RowPainting.hpp"

namespace {

constexpr float lightOpacity = 0.075F;
/// In points, from the corner of the window that reading begins at.
constexpr double lightReach = 800;

// Lays the light over `count` pixels from (x, y) on; its corner is at (`corner`, 0).
void paintLight(quint32* row, int x, int count, int y, int corner, double scale) {
    const double reach = lightReach * scale;
    const double below = y + 0.5;
    if (below >= reach) {
        return;
    }
    const int aside = static_cast<int>(std::ceil(std::sqrt(reach * reach - below * below)));
    const int begin = std::max(x, corner - aside);
    const int end = std::min(x + count, corner + aside);
    if (begin >= end) {
        return;
    }
    Pixels::mixRow(row + (begin - x), end - begin, Pixels::phase(begin, y), Rgb::of(Garden::mint),
                   [first = static_cast<float>(begin - corner) + 0.5F,
                    square = static_cast<float>(below * below),
                    perPixel = static_cast<float>(1 / reach)](int i) {
                       const float across = first + static_cast<float>(i);
                       const float distance = std::sqrt(across * across + square);
                       return std::max(1 - distance * perPixel, 0.0F) * lightOpacity;
                   });
}

}  // namespace

/// The rows of one rectangle, from top to bottom.
class Backdrop::Rows {
public:
    Rows(const Backdrop& ground, const QRect& area) : ground_(ground) {
        if (ground.shadow_) {
            shaded_ = ground.shadow_->area() & area;
            shadow_.emplace(*ground.shadow_, shaded_.left(), std::max(shaded_.width(), 0));
        }
    }

    void compose(quint32* row, int x, int count, int y) {
        std::fill_n(row, count, Garden::night.rgb());
        const int corner = QGuiApplication::isRightToLeft() ? ground_.bounds_.width() : 0;
        paintLight(row, x, count, y, corner, ground_.scale_);
        if (!shaded_.isEmpty() && y >= shaded_.top() && y <= shaded_.bottom()) {
            shadow_->paint(row + (shaded_.left() - x), y);
        }
        const QRect line(x, y, count, 1);
        for (const QRect& inside : ground_.inside_) {
            const QRect part = inside & line;
            if (!part.isEmpty()) {
                std::fill_n(row + (part.left() - x), part.width(), Garden::soil.rgb());
            }
        }
        for (const Edge& edge : ground_.edges_) {
            const QRect part = edge.area & line;
            if (!part.isEmpty()) {
                paintEdge(row + (part.left() - x), part, edge);
            }
        }
    }

private:
    static void paintEdge(quint32* row, const QRect& part, const Edge& edge) {
        const QPoint place = part.topLeft() - edge.area.topLeft();
        const auto lay = [&](const QColor& colour, const QImage& shares, float opacity) {
            const uchar* const share = shares.constScanLine(place.y()) + place.x();
            Pixels::mixRow(row, part.width(), Pixels::phase(part.left(), part.top()),
                           Rgb::of(colour),
                           [=](int i) { return static_cast<float>(share[i]) * opacity / 255; });
        };
        lay(Garden::soil, edge.fill, 1);
        lay(Garden::mint, edge.stroke, static_cast<float>(FrameShape::strokeOpacity));
    }

    const Backdrop& ground_;
    QRect shaded_;
    std::optional<FrameShadow::Rows> shadow_;
};

void Backdrop::fit(const QSize& size, qreal devicePixelRatio, const QRectF& frame) {
    if (size == size_ && devicePixelRatio == scale_ && frame == frame_) {
        return;
    }
    ++revision_;
    size_ = size;
    scale_ = devicePixelRatio;
    frame_ = frame;
    const QSizeF pixels = QSizeF(size) * devicePixelRatio;
    bounds_ = {0, 0, static_cast<int>(std::ceil(pixels.width())),
               static_cast<int>(std::ceil(pixels.height()))};
    placeFrame();
}

void Backdrop::placeFrame() {
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

void Backdrop::paint(QPainter& painter, const QRect& area) const {
    QImage buffer(area.width(), std::min(area.height(), RowPainting::rowsAtOnce),
                  QImage::Format_RGB32);
    Rows rows(*this, area);
    RowPainting::paint(painter, area, buffer, [&](quint32* row, int x, int count, int y) {
        rows.compose(row, x, count, y);
    });
}

QImage Backdrop::image(const QRect& area) const {
    Rows rows(*this, area);
    return RowPainting::image(
        area, [&](quint32* row, int x, int count, int y) { rows.compose(row, x, count, y); });
}
