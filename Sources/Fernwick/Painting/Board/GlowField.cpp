#include "Painting/Board/GlowField.hpp"

#include "Garden/Look/Palette.hpp"
#include "Painting/Board/GlowPieces.hpp"
#include "Painting/Raster/PixelKernels.hpp"

namespace {

using GlowPieces::margin;
using GlowPieces::samplesPerCell;
using GlowPieces::side;

constexpr float glowOpacity = 0.35F;

// The field goes beyond the grid by a piece's margin, so that every piece fits in.
int samplesAlong(int cells) {
    return cells * samplesPerCell + 2 * margin;
}

SampleAxis axis(int pixels, int cells, double origin, double cell) {
    const double samplesPerPixel = samplesPerCell / cell;
    const double firstPixel = (0.5 - origin) * samplesPerPixel + margin - 0.5;
    return {pixels, samplesAlong(cells), samplesPerPixel, firstPixel};
}

}  // namespace

GlowField::GlowField(const PixelGrid& grid)
    : grid_(grid),
      stride_(samplesAlong(grid.columns)),
      samples_(static_cast<std::size_t>(stride_) *
               static_cast<std::size_t>(samplesAlong(grid.rows))),
      columns_(axis(grid.size.width(), grid.columns, grid.origin.x(), grid.cell)),
      rows_(axis(grid.size.height(), grid.rows, grid.origin.y(), grid.cell)) {}

void GlowField::change(int column, int row, Links before, Links after) {
    if (before != Link::none) {
        add(column, row, before, -1);
    }
    if (after != Link::none) {
        add(column, row, after, 1);
    }
}

QRect GlowField::reach(int column, int row) const {
    // A pixel takes from the samples on both sides of it.
    const double around = (GlowPieces::margin + 1.0) / samplesPerCell * grid_.cell;
    const QRectF cell(grid_.origin + QPointF(column, row) * grid_.cell,
                      QSizeF(grid_.cell, grid_.cell));
    return cell.marginsAdded(QMarginsF() + around).toAlignedRect();
}

void GlowField::add(int column, int row, Links links, int sign) {
    const GlowPieces::Piece& piece = GlowPieces::piece(links);
    const auto factor = static_cast<std::uint16_t>(sign);
    for (int y = 0; y < side; ++y) {
        std::uint16_t* const samples =
            samples_.data() + static_cast<std::ptrdiff_t>(row * samplesPerCell + y) * stride_ +
            static_cast<std::ptrdiff_t>(column) * samplesPerCell;
        const std::uint16_t* const values = piece.data() + static_cast<std::ptrdiff_t>(y) * side;
        for (int x = 0; x < side; ++x) {
            // Modulo 2^16, where a factor of -1 takes away what 1 has added.
            samples[x] =
                static_cast<std::uint16_t>(samples[x] + static_cast<unsigned>(values[x]) * factor);
        }
    }
}

void GlowField::paint(QImage& picture, const QRect& area) const {
    constexpr float scale = glowOpacity / GlowPieces::full;
    const Rgb colour = Rgb::of(Garden::mint);
    WidenedRows<std::uint16_t> pair(samples_.data(), stride_, columns_, area.left(), area.width());
    for (int y = area.top(); y <= area.bottom(); ++y) {
        const auto [sample, weight] = rows_[y];
        pair.seek(sample);
        auto* const row = reinterpret_cast<quint32*>(picture.scanLine(y)) + area.left();
        pixelKernels().mixBetween(
            row, area.width(), Pixels::phase(area.left(), y), colour,
            {pair.upper(), pair.lower(), (1 - weight) * scale, weight * scale});
    }
}
