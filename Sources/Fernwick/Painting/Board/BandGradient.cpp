#include "Painting/Board/BandGradient.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

#include "Garden/Look/Palette.hpp"
#include "Painting/Raster/ByteRuns.hpp"
#include "Painting/Raster/PixelKernels.hpp"

namespace Painting {
namespace {

constexpr QColor tailColour = Garden::srgb(0.23, 0.58, 0.40);
constexpr double fixedOne = 1 << 16;

std::array<int, 3> channels(const QColor& colour) {
    return {colour.red(), colour.green(), colour.blue()};
}

void blend(const Scanline& line, const quint32* ground, const std::uint8_t* mask) {
    // An antialiased edge across the row is a pixel or two wide: too short for a vector kernel.
    constexpr int few = 3;
    if (line.count > few) {
        pixelKernels().blendMasked(line, ground, mask);
        return;
    }
    quint32 phase = ditherPhase(line.x, line.y);
    for (int i = 0; i < line.count; ++i) {
        line.pixels[i] = blendMaskedPixel(ground[i], line.pixels[i], mask[i], phase);
        phase += ditherStepX;
    }
}

}  // namespace

BandGradient::BandGradient(const QPointF& tail, const QPointF& head) : tail_(tail) {
    const QPointF way = head - tail;
    slope_ = way / QPointF::dotProduct(way, way);
    const std::array<int, 3> from = channels(tailColour);
    const std::array<int, 3> to = channels(Garden::mint);
    const double first = QPointF::dotProduct(QPointF(0.5, 0.5) - tail, slope_);
    for (std::size_t i = 0; i < from.size(); ++i) {
        const double change = (to[i] - from[i]) * fixedOne;
        origin_[i] = static_cast<std::int32_t>(std::lround(from[i] * fixedOne + change * first));
        perColumn_[i] = static_cast<std::int32_t>(std::lround(change * slope_.x()));
        perRow_[i] = static_cast<std::int32_t>(std::lround(change * slope_.y()));
    }
}

void BandGradient::paint(const Scanline& line, const quint32* ground,
                         const std::uint8_t* mask) const {
    constexpr std::uint8_t none = 0;
    constexpr std::uint8_t full = 255;
    const auto part = [&line](int begin, int end) {
        return line.part(line.x + begin, line.x + end);
    };
    const Stops stops = stopsOf(line.y);
    int end = 0;
    while (end < line.count) {
        int begin = end;
        end = endOfEqual(mask, none, begin, line.count);
        std::copy(ground + begin, ground + end, line.pixels + begin);
        begin = end;
        end = endOfOther(mask, none, begin, line.count);
        fill(part(begin, end), stops);
        while ((begin = endOfEqual(mask, full, begin, end)) < end) {
            const int edge = begin;
            begin = endOfOther(mask, full, edge, end);
            blend(part(edge, begin), ground + edge, mask + edge);
        }
    }
}

BandGradient::Stops BandGradient::stopsOf(int y) const {
    constexpr int far = std::numeric_limits<int>::max() / 2;
    const quint32 tail = tailColour.rgb();
    const quint32 head = Garden::mint.rgb();
    // The position of the row's left end on the gradient, from the tail (0) to the head (1).
    const double start = QPointF::dotProduct(QPointF(0.5, y + 0.5) - tail_, slope_);
    if (slope_.x() == 0) {
        const bool between = start >= 0 && start <= 1;
        return {between ? -far : far, far, start < 0 ? tail : head, head};
    }
    const auto columnOf = [&](double position) {
        return static_cast<int>(
            std::ceil(std::clamp((position - start) / slope_.x(), -double{far}, double{far})));
    };
    return slope_.x() > 0 ? Stops{columnOf(0), columnOf(1), tail, head}
                          : Stops{columnOf(1), columnOf(0), head, tail};
}

void BandGradient::fill(const Scanline& line, const Stops& stops) const {
    const int lineEnd = line.x + line.count;
    const int begin = std::clamp(stops.begin, line.x, lineEnd);
    const int end = std::clamp(stops.end, begin, lineEnd);
    line.part(line.x, begin).fill(stops.before);
    PixelKernels::Gradient gradient{};
    for (std::size_t i = 0; i < origin_.size(); ++i) {
        gradient.first[i] =
            static_cast<quint32>(origin_[i] + begin * perColumn_[i] + line.y * perRow_[i]);
        gradient.change[i] = static_cast<quint32>(perColumn_[i]);
    }
    pixelKernels().fillGradient(line.part(begin, end), gradient);
    line.part(end, lineEnd).fill(stops.after);
}

}  // namespace Painting
