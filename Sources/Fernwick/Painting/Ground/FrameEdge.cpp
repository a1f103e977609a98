#include "Painting/Ground/FrameEdge.hpp"

#include <algorithm>

#include "Garden/Look/Palette.hpp"
#include "Painting/Raster/Scanline.hpp"

namespace {

using Painting::Backdrop;

// A pixel of the backdrop is outside + fill * share, where `share` is the part of the fill that
// shows under the stroke. Without that part it is a premultiplied pixel with an alpha of 1 - share,
// which can be drawn over any picture in place of the fill.
quint32 withoutFill(quint32 ground, double share) {
    const auto channel = [&](int value, int fill) {
        return static_cast<int>(std::clamp(value - fill * share + 0.5, 0.0, 255 * (1 - share)));
    };
    return qRgba(
        channel(qRed(ground), Garden::soil.red()), channel(qGreen(ground), Garden::soil.green()),
        channel(qBlue(ground), Garden::soil.blue()), static_cast<int>(255 * (1 - share) + 0.5));
}

// The part of `edge` that lies in `area`; `ground` is the backdrop there.
QImage stripImage(const Backdrop::Edge& edge, const QRect& area, const QImage& ground,
                  double strokeOpacity) {
    const QPoint first = area.topLeft() - edge.area.topLeft();
    QImage image(area.size(), QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < image.height(); ++y) {
        const Painting::Scanline line = Painting::scanline(image, image.rect(), y);
        const quint32* const behind = Painting::pixelsAt(ground, 0, y);
        const uchar* const fill = edge.fill.constScanLine(first.y() + y) + first.x();
        const uchar* const stroke = edge.stroke.constScanLine(first.y() + y) + first.x();
        for (int x = 0; x < line.count; ++x) {
            const double stroked = stroke[x] / 255.0 * strokeOpacity;
            const double share = fill[x] / 255.0 * (1 - stroked);
            line.pixels[x] = withoutFill(behind[x], share);
        }
    }
    return image;
}

}  // namespace

Painting::FrameEdge::FrameEdge(Backdrop& ground, const QRect& boardRect) {
    for (const Backdrop::Edge& edge : ground.edges()) {
        const QRect area = edge.area & boardRect & ground.bounds();
        if (!area.isEmpty()) {
            strips_.push_back({area.topLeft() - boardRect.topLeft(),
                               stripImage(edge, area, ground.image(area), ground.strokeOpacity())});
        }
    }
}

void Painting::FrameEdge::paint(QPainter& painter, const QRect& area) const {
    for (const Strip& strip : strips_) {
        const QRect whole(strip.corner, strip.image.size());
        const QRect part = whole & area;
        if (!part.isEmpty()) {
            painter.drawImage(part.topLeft(), strip.image, part.translated(-whole.topLeft()));
        }
    }
}
