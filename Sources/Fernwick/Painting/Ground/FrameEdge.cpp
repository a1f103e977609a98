#include "Painting/Ground/FrameEdge.hpp"

#include <algorithm>

#include "Garden/Look/Palette.hpp"

namespace {

// The ground is (outside) + (fill) * share, where `share` is what the fill keeps under the stroke.
// Taking the fill away leaves the rest, ready multiplied, for any picture to show through.
quint32 withoutFill(quint32 ground, double share) {
    const auto channel = [&](int there, int fill) {
        return static_cast<quint32>(std::clamp(there - fill * share + 0.5, 0.0, 255 * (1 - share)));
    };
    const quint32 red = channel(qRed(ground), Garden::soil.red());
    const quint32 green = channel(qGreen(ground), Garden::soil.green());
    const quint32 blue = channel(qBlue(ground), Garden::soil.blue());
    const auto alpha = static_cast<quint32>(255 * (1 - share) + 0.5);
    return alpha << 24U | red << 16U | green << 8U | blue;
}

// `behind` is the ground of `area`.
QImage stripImage(const QImage& behind, const QRect& area, const FrameShape& shape) {
    const QImage fill = shape.fill(area);
    const QImage stroke = shape.stroke(area);
    QImage image(area.size(), QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < area.height(); ++y) {
        auto* const pixels = reinterpret_cast<quint32*>(image.scanLine(y));
        const auto* const ground = reinterpret_cast<const quint32*>(behind.constScanLine(y));
        for (int x = 0; x < area.width(); ++x) {
            const double stroked = stroke.constScanLine(y)[x] / 255.0 * FrameShape::strokeOpacity;
            const double share = fill.constScanLine(y)[x] / 255.0 * (1 - stroked);
            pixels[x] = withoutFill(ground[x], share);
        }
    }
    return image;
}

}  // namespace

FrameEdge::FrameEdge(const Backdrop& ground, const QRect& place, const FrameShape& shape) {
    const QRect known = (place & ground.bounds()).translated(-place.topLeft());
    for (const QRect& edge : shape.edges()) {
        const QRect area = edge & known;
        if (!area.isEmpty()) {
            const QImage behind = ground.image(area.translated(place.topLeft()));
            strips_.push_back({area.topLeft(), stripImage(behind, area, shape)});
        }
    }
}

void FrameEdge::paint(QPainter& painter, const QRect& area) const {
    for (const Strip& strip : strips_) {
        const QRect whole(strip.corner, strip.image.size());
        const QRect part = whole & area;
        if (!part.isEmpty()) {
            painter.drawImage(part.topLeft(), strip.image, part.translated(-whole.topLeft()));
        }
    }
}
