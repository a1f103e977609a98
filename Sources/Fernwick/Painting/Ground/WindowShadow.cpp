#include "Painting/Ground/WindowShadow.hpp"

#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>

#include "Garden/Look/RoundedShape.hpp"
#include "Painting/Raster/GaussianBlur.hpp"

namespace {

/// Lengths in points; `offset` is downwards.
struct Layer {
    double sigma;
    double offset;
    double opacity;
};
constexpr std::array layers{Layer{12, 4, 0.35}, Layer{2.5, 1, 0.18}};

/// Further inside than this, in points, the shadow along an edge does not depend on the corner.
constexpr double cornerReach = 56;

QMargins scaled(const QMargins& margins, double scale) {
    return (QMarginsF(margins) * scale).toMargins();
}

Painting::Plane<float> blurred(const QSize& size, const QRect& window, const Layer& layer,
                               double scale) {
    QImage mask(size, QImage::Format_Alpha8);
    mask.fill(0);
    QPainter painter(&mask);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(
        Garden::continuousRoundedRect(QRectF(window).translated(0, layer.offset * scale),
                                      Painting::WindowShadow::cornerRadius * scale),
        Qt::black);
    painter.end();
    Painting::Plane<float> plane(size.width(), size.height());
    for (int y = 0; y < size.height(); ++y) {
        std::copy_n(mask.constScanLine(y), size.width(), plane.row(y));
    }
    Painting::gaussianBlur({&plane, 1}, layer.sigma * scale);
    return plane;
}

}  // namespace

namespace Painting {

WindowShadow::WindowShadow(double scale) : scale_(scale) {
    const int reach = static_cast<int>(std::ceil(cornerReach * scale));
    const QMargins around = scaled(margins, scale);
    fixed_ = around + reach;
    const QRect window(around.left(), around.top(), 2 * reach + 1, 2 * reach + 1);
    const QSize size = window.marginsAdded(around).size();
    image_ = QImage(size, QImage::Format_ARGB32_Premultiplied);
    image_.fill(Qt::transparent);
    for (const Layer& layer : layers) {
        const Plane<float> coverage = blurred(size, window, layer, scale);
        for (int y = 0; y < size.height(); ++y) {
            auto* const line = reinterpret_cast<QRgb*>(image_.scanLine(y));
            for (int x = 0; x < size.width(); ++x) {
                const double under = qAlpha(line[x]);
                const double over = coverage.at(x, y) * layer.opacity;
                line[x] = qRgba(0, 0, 0, qRound(under + over - under * over / 255));
            }
        }
    }
}

void WindowShadow::paint(QPainter& painter, const QRect& window) const {
    const QRect all = window.marginsAdded(scaled(margins, scale_));
    const auto parts = [](int first, int length, int begin, int end) {
        return std::array{first, first + begin, first + length - end, first + length};
    };
    const auto [l, t, r, b] =
        std::array{fixed_.left(), fixed_.top(), fixed_.right(), fixed_.bottom()};
    const auto fromX = parts(0, image_.width(), l, r);
    const auto fromY = parts(0, image_.height(), t, b);
    const auto toX = parts(all.left(), all.width(), l, r);
    const auto toY = parts(all.top(), all.height(), t, b);
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            if (row != 1 || column != 1) {
                painter.drawImage(QRect(QPoint(toX[column], toY[row]),
                                        QPoint(toX[column + 1] - 1, toY[row + 1] - 1)),
                                  image_,
                                  QRect(QPoint(fromX[column], fromY[row]),
                                        QPoint(fromX[column + 1] - 1, fromY[row + 1] - 1)));
            }
        }
    }
}

}  // namespace Painting
