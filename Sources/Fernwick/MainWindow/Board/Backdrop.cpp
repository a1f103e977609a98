#include "MainWindow/Board/Backdrop.hpp"

#include <QPainter>
#include <QPainterPath>

#include "MainWindow/Board/PlainPainter.hpp"

namespace {

constexpr double cornerRadius = 22;
constexpr double lightReach = 800;
constexpr double lightOpacity = 0.075;
constexpr double shadowOpacity = 0.25;
constexpr double shadowSigma = 25;
constexpr double shadowDrop = 15;

const QColor mint = QColor::fromRgbF(0.65F, 0.94F, 0.64F);
const QColor night = QColor::fromRgbF(0.035F, 0.065F, 0.053F);
const QColor soil = QColor::fromRgbF(0.055F, 0.095F, 0.076F);

QColor withOpacity(QColor colour, double opacity) {
    colour.setAlphaF(static_cast<float>(opacity));
    return colour;
}

}  // namespace

const QImage& Backdrop::image(const QSize& size, qreal devicePixelRatio, const QRectF& frame) {
    if (size == size_ && devicePixelRatio == devicePixelRatio_ && frame == frame_) {
        return image_;
    }
    size_ = size;
    devicePixelRatio_ = devicePixelRatio;
    frame_ = frame;
    QPainterPath shape;
    shape.addRoundedRect(frame, cornerRadius, cornerRadius);
    const QSize pixels = (QSizeF(size) * devicePixelRatio).toSize();
    QImage shadow(pixels, QImage::Format_ARGB32_Premultiplied);
    shadow.setDevicePixelRatio(devicePixelRatio);
    shadow.fill(Qt::transparent);
    QPainter shade(&shadow);
    shade.fillPath(shape.translated(0, shadowDrop), withOpacity(Qt::black, shadowOpacity));
    shade.end();
    blurPlainly(shadow, shadowSigma * devicePixelRatio);
    image_ = QImage(pixels, QImage::Format_RGB32);
    image_.setDevicePixelRatio(devicePixelRatio);
    image_.fill(night);
    QPainter painter(&image_);
    painter.setRenderHint(QPainter::Antialiasing);
    QRadialGradient light(QPointF(), lightReach);
    light.setColorAt(0, withOpacity(mint, lightOpacity));
    light.setColorAt(1, withOpacity(mint, 0));
    painter.fillRect(QRectF(QPointF(), QSizeF(size)), light);
    painter.drawImage(QPointF(), shadow);
    painter.fillPath(shape, soil);
    return image_;
}
