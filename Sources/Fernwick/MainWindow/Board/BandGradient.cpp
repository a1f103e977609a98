#include "MainWindow/Board/BandGradient.hpp"

#include <algorithm>

#include "Garden/Palette.hpp"
#include "MainWindow/Board/Pixels.hpp"

namespace {

constexpr QColor tailColour = Garden::srgb(0.23, 0.58, 0.40);

}  // namespace

BandGradient::BandGradient(const QPointF& tail, const QPointF& head) : tail_(tail) {
    const QPointF way = head - tail;
    slope_ = way / QPointF::dotProduct(way, way);
}

void BandGradient::paintRow(quint32* row, const quint32* ground, const std::uint8_t* mask,
                            int count, int x, int y) const {
    const Rgb tail = Rgb::of(tailColour);
    const Rgb head = Rgb::of(Garden::mint);
    const QPointF first = QPointF(x + 0.5, y + 0.5) - tail_;
    const auto start = static_cast<float>(QPointF::dotProduct(first, slope_));
    const auto step = static_cast<float>(slope_.x());
    const auto colour = [=](int i) {
        const float t = std::clamp(start + step * static_cast<float>(i), 0.0F, 1.0F);
        return Rgb{tail.red + (head.red - tail.red) * t, tail.green + (head.green - tail.green) * t,
                   tail.blue + (head.blue - tail.blue) * t};
    };
    const auto coverage = [=](int i) {
        return static_cast<float>(static_cast<int>(mask[i])) * (1.0F / 255);
    };
    Pixels::mixRowOver(row, ground, count, Pixels::phase(x, y), colour, coverage);
}
