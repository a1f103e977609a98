#include "MainWindow/Board/Backdrop.hpp"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QRegion>
#include <algorithm>
#include <cmath>

#include "Garden/Palette.hpp"
#include "MainWindow/Board/FloatPlane.hpp"
#include "MainWindow/Board/FrameShape.hpp"
#include "MainWindow/Board/Pixels.hpp"
#include "MainWindow/Board/Upsampling.hpp"

namespace {

constexpr float lightOpacity = 0.075F;
/// In points, from the corner of the window that reading begins at.
constexpr double lightReach = 800;

constexpr float shadowOpacity = 0.25F;
/// In points: the blur and how far below the frame the shadow lies.
constexpr double shadowSigma = 25;
constexpr double shadowDrop = 15;

quint32* pixelsAt(QImage& picture, int x, int y) {
    return reinterpret_cast<quint32*>(picture.scanLine(y)) + x;
}

void paintLight(QImage& picture, double scale) {
    const auto reach = static_cast<float>(lightReach * scale);
    const int columns = std::min(picture.width(), static_cast<int>(std::ceil(reach)));
    const int rows = std::min(picture.height(), static_cast<int>(std::ceil(reach)));
    const int corner = QGuiApplication::isRightToLeft() ? picture.width() : 0;
    const int left = corner == 0 ? 0 : corner - columns;
    const Rgb mint = Rgb::of(Garden::mint);
    for (int y = 0; y < rows; ++y) {
        const float below = static_cast<float>(y) + 0.5F;
        Pixels::mixRow(pixelsAt(picture, left, y), columns, Pixels::phase(left, y), mint,
                       [=](int x) {
                           const float aside = static_cast<float>(left + x - corner) + 0.5F;
                           const float distance = std::sqrt(aside * aside + below * below);
                           return std::max(1 - distance / reach, 0.0F) * lightOpacity;
                       });
    }
}

// The blurred shape at a coarse scale: a few samples to a sigma hold all there is to it.
class Shadow {
public:
    Shadow(const FrameShape& shape, const QRectF& frame, double scale)
        : area_(frame.translated(0, shadowDrop * scale)
                    .marginsAdded(QMarginsF() + shadowExtent * shadowSigma * scale)
                    .toAlignedRect()),
          pixelsPerSample_(shadowSigma * scale / samplesPerSigma),
          plane_(samplesAlong(area_.width()), samplesAlong(area_.height())) {
        QImage mask(plane_.width, plane_.height, QImage::Format_Alpha8);
        mask.fill(0);
        QPainter painter(&mask);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(1 / pixelsPerSample_, 1 / pixelsPerSample_);
        painter.translate(QPointF(0, shadowDrop * scale) - area_.topLeft());
        painter.fillPath(shape.path(), Qt::black);
        painter.end();
        for (int y = 0; y < plane_.height; ++y) {
            std::transform(mask.constScanLine(y), mask.constScanLine(y) + plane_.width,
                           plane_.row(y), [](uchar value) { return value / 255.0F; });
        }
        blur(plane_, samplesPerSigma);
    }

    [[nodiscard]] const QRect& area() const { return area_; }

    void paint(QImage& picture, const QRect& part) const {
        const double step = 1 / pixelsPerSample_;
        const SampleAxis columns(area_.width(), plane_.width, step, 0.5 * step - 0.5);
        const SampleAxis rows(area_.height(), plane_.height, step, 0.5 * step - 0.5);
        WidenedRows<float> pair(plane_.values.data(), plane_.width, columns,
                                part.left() - area_.left(), part.width());
        for (int y = part.top(); y <= part.bottom(); ++y) {
            const auto [sample, weight] = rows[y - area_.top()];
            pair.seek(sample);
            Pixels::mixRow(pixelsAt(picture, part.left(), y), part.width(),
                           Pixels::phase(part.left(), y), Rgb{},
                           [upper = pair.upper(), lower = pair.lower(), below = weight](int i) {
                               return (upper[i] + (lower[i] - upper[i]) * below) * shadowOpacity;
                           });
        }
    }

private:
    static constexpr double samplesPerSigma = 4;
    static constexpr double shadowExtent = 3;

    [[nodiscard]] int samplesAlong(int pixels) const {
        return static_cast<int>(std::ceil(pixels / pixelsPerSample_)) + 1;
    }

    QRect area_;
    double pixelsPerSample_;
    FloatPlane plane_;
};

void paintFrame(QImage& picture, const FrameShape& shape) {
    QRegion inside(shape.bounds() & picture.rect());
    for (const QRect& edge : shape.edges()) {
        const QRect area = edge & picture.rect();
        if (area.isEmpty()) {
            continue;
        }
        inside -= area;
        const QImage fill = shape.fill(area);
        const QImage stroke = shape.stroke(area);
        for (int y = 0; y < area.height(); ++y) {
            quint32* const row = pixelsAt(picture, area.left(), area.top() + y);
            const quint32 phase = Pixels::phase(area.left(), area.top() + y);
            const auto lay = [&](const QColor& colour, const uchar* share, float opacity) {
                Pixels::mixRow(row, area.width(), phase, Rgb::of(colour),
                               [=](int i) { return static_cast<float>(share[i]) * opacity / 255; });
            };
            lay(Garden::soil, fill.constScanLine(y), 1);
            lay(Garden::mint, stroke.constScanLine(y),
                static_cast<float>(FrameShape::strokeOpacity));
        }
    }
    for (const QRect& area : inside) {
        for (int y = area.top(); y <= area.bottom(); ++y) {
            std::fill_n(pixelsAt(picture, area.left(), y), area.width(), Garden::soil.rgb());
        }
    }
}

}  // namespace

const QImage& Backdrop::image(const QSize& size, qreal devicePixelRatio, const QRectF& frame) {
    if (size == size_ && devicePixelRatio == devicePixelRatio_ && frame == frame_) {
        return image_;
    }
    size_ = size;
    devicePixelRatio_ = devicePixelRatio;
    frame_ = frame;
    const QSizeF pixels = QSizeF(size) * devicePixelRatio;
    image_ = QImage(static_cast<int>(std::ceil(pixels.width())),
                    static_cast<int>(std::ceil(pixels.height())), QImage::Format_RGB32);
    image_.fill(Garden::night.rgb());
    paintLight(image_, devicePixelRatio);
    const QRectF place(frame.topLeft() * devicePixelRatio, frame.size() * devicePixelRatio);
    if (!place.isEmpty()) {
        const FrameShape shape(place, devicePixelRatio);
        const Shadow shadow(shape, place, devicePixelRatio);
        for (const QRect& part : QRegion(shadow.area() & image_.rect()) - shape.inside()) {
            shadow.paint(image_, part);
        }
        paintFrame(image_, shape);
    }
    image_.setDevicePixelRatio(devicePixelRatio);
    return image_;
}
