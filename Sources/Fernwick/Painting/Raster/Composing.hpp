#pragma once

#include <QImage>
#include <QPainter>
#include <QRegion>
#include <future>
#include <optional>

#include "Painting/Raster/Scanline.hpp"

namespace Painting {

/// The memory that a painter draws on.
struct PaintedMemory {
    QImage* image;
    /// From the painter's coordinates to the image's.
    QPoint offset;
    /// The pixels to write, in the painter's coordinates.
    QRegion region;
};

/// The memory behind `area`, which is in the painter's coordinates, if writing opaque pixels to it
/// is the same as drawing them: an image of 32 bits a pixel and coordinates that are its pixels.
/// The painter's own clip must contain `area`; the paint event's is taken into account.
[[nodiscard]] std::optional<PaintedMemory> paintedMemory(const QPainter& painter,
                                                         const QRect& area);

/// Calls `compose(scanline)` for each row of `area`, which is inside `image` when moved by
/// `offset`. Large areas are composed in two threads, the lower half by a copy of `compose`.
template <typename Compose>
void composeRows(QImage& image, const QPoint& offset, const QRect& area, Compose& compose) {
    // In pixels: more than change in a step of the snake on a 4K screen, where a thread would start
    // many times a second.
    constexpr int worthAThread = 300 * 1024;
    // Once, because QImage::bits() may be called in one thread only.
    uchar* const bits = image.bits();
    const qsizetype bytesPerLine = image.bytesPerLine();
    const auto composeBetween = [&](int top, int bottom, Compose& composeRow) {
        for (int y = top; y < bottom; ++y) {
            auto* const pixels = reinterpret_cast<quint32*>(bits + (y + offset.y()) * bytesPerLine);
            composeRow(Scanline{pixels + area.left() + offset.x(), area.left(), y, area.width()});
        }
    };
    const int end = area.bottom() + 1;
    if (area.width() * area.height() < worthAThread) {
        composeBetween(area.top(), end, compose);
        return;
    }
    const int middle = area.top() + area.height() / 2;
    // Deferred to get() if there can be no further thread.
    std::future<void> lowerHalf =
        std::async(std::launch::async | std::launch::deferred,
                   [&composeBetween, middle, end, composeRow = compose]() mutable {
                       composeBetween(middle, end, composeRow);
                   });
    composeBetween(area.top(), middle, compose);
    lowerHalf.get();
}

/// Draws `area` of the painter. `compose(scanline)` writes opaque pixels to a part of one of its
/// rows. They are composed where the painter draws, so that they need not be copied, or else a few
/// rows at a time in a buffer.
template <typename Compose>
void drawComposed(QPainter& painter, const QRect& area, Compose compose) {
    if (const auto memory = paintedMemory(painter, area)) {
        for (const QRect& part : memory->region) {
            composeRows(*memory->image, memory->offset, part, compose);
        }
        return;
    }
    // Few enough for the buffer to stay in the CPU cache.
    constexpr int rowsPerBatch = 16;
    QImage buffer(area.width(), std::min(area.height(), rowsPerBatch), QImage::Format_RGB32);
    for (int top = area.top(); top <= area.bottom(); top += rowsPerBatch) {
        const QRect rows = area & QRect(area.left(), top, area.width(), rowsPerBatch);
        composeRows(buffer, -rows.topLeft(), rows, compose);
        painter.drawImage(rows.topLeft(), buffer, QRect(QPoint(), rows.size()));
    }
}

/// Returns what `drawComposed` would draw, as an image of the size of `area`.
template <typename Compose>
[[nodiscard]] QImage composedImage(const QRect& area, Compose compose) {
    QImage image(area.size(), QImage::Format_RGB32);
    composeRows(image, -area.topLeft(), area, compose);
    return image;
}

}  // namespace Painting
