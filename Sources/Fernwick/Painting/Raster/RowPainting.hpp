#pragma once

#include <QImage>
#include <QPainter>
#include <QRect>
#include <algorithm>

/// Painting what is composed only as it is put on the screen.
namespace RowPainting {

/// So few that they stay in a processor's cache until they are copied to the screen.
inline constexpr int rowsAtOnce = 16;

/// The pixels of one row from `x` on.
[[nodiscard]] inline quint32* pixelsOf(QImage& picture, int x, int y) {
    return reinterpret_cast<quint32*>(picture.scanLine(y)) + x;
}

/// Paints `area` at its place in the painter's coordinates, a few rows at a time by way of
/// `buffer`, which is at least as wide. `composeRow(row, x, count, y)` writes `count` pixels from
/// (x, y) on.
template <typename ComposeRow>
void paint(QPainter& painter, const QRect& area, QImage& buffer, ComposeRow composeRow) {
    const int rows = buffer.height();
    for (int top = area.top(); top <= area.bottom(); top += rows) {
        const int count = std::min(rows, area.bottom() + 1 - top);
        for (int row = 0; row < count; ++row) {
            composeRow(pixelsOf(buffer, 0, row), area.left(), area.width(), top + row);
        }
        painter.drawImage(QPoint(area.left(), top), buffer, QRect(0, 0, area.width(), count));
    }
}

/// The picture of `area`, whose corner comes to (0, 0).
template <typename ComposeRow>
[[nodiscard]] QImage image(const QRect& area, ComposeRow composeRow) {
    QImage picture(area.size(), QImage::Format_RGB32);
    for (int row = 0; row < area.height(); ++row) {
        composeRow(pixelsOf(picture, 0, row), area.left(), area.width(), area.top() + row);
    }
    return picture;
}

}  // namespace RowPainting
