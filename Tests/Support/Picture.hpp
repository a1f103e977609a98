#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QRectF>
#include <QWidget>
#include <cstdlib>

/// Renders `widget` on black with `scale` device pixels per point.
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

/// `colour` blended over black.
inline QColor onBlack(const QColor& colour) {
    const float opacity = colour.alphaF();
    return QColor::fromRgbF(colour.redF() * opacity, colour.greenF() * opacity,
                            colour.blueF() * opacity);
}

/// Whether the components of two colours differ by at most 1/255, a rounding error.
inline bool alike(const QColor& one, const QColor& other) {
    constexpr int rounding = 1;
    return std::abs(one.red() - other.red()) <= rounding &&
           std::abs(one.green() - other.green()) <= rounding &&
           std::abs(one.blue() - other.blue()) <= rounding;
}

/// The number of pixels of `image` that are `colour` on black.
inline int countOf(const QImage& image, const QColor& colour) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += alike(image.pixelColor(x, y), onBlack(colour)) ? 1 : 0;
        }
    }
    return count;
}

/// The bounding rectangle of all pixels that are not black.
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
