#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QRectF>
#include <QWidget>
#include <cstdlib>

/// What `widget` looks like on black, `scale` device pixels a logical pixel.
inline QImage picture(QWidget& widget, double scale = 1) {
    widget.ensurePolished();
    if (!widget.testAttribute(Qt::WA_Resized)) {
        widget.adjustSize();
    }
    QImage image(widget.size() * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::black);
    widget.render(&image, {}, {}, QWidget::DrawChildren);
    return image;
}

/// `colour` laid over black, as a picture holds it.
inline QColor onBlack(const QColor& colour) {
    const float opacity = colour.alphaF();
    return QColor::fromRgbF(colour.redF() * opacity, colour.greenF() * opacity,
                            colour.blueF() * opacity);
}

/// Whether two colours differ by no more than one step of rounding in each component.
inline bool alike(const QColor& one, const QColor& other) {
    constexpr int rounding = 1;
    return std::abs(one.red() - other.red()) <= rounding &&
           std::abs(one.green() - other.green()) <= rounding &&
           std::abs(one.blue() - other.blue()) <= rounding;
}

/// How many pixels of `image` have exactly the look of `colour` on black.
inline int countOf(const QImage& image, const QColor& colour) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += alike(image.pixelColor(x, y), onBlack(colour)) ? 1 : 0;
        }
    }
    return count;
}

/// The smallest rectangle around all that is not black.
inline QRect inkOf(const QImage& image) {
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) != QColor(Qt::black)) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}
