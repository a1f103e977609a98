#include "Painting/Board/BandGradient.hpp"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

#include "Garden/Look/Palette.hpp"
#include "Painting/Raster/PixelKernels.hpp"

namespace {

constexpr QColor tailColour = Garden::srgb(0.23, 0.58, 0.40);
constexpr double one = 1 << 16;

std::array<int, 3> channels(const QColor& colour) {
    return {colour.red(), colour.green(), colour.blue()};
}

quint32 solid(const std::array<int, 3>& colour) {
    return qRgb(colour[0], colour[1], colour[2]);
}

// Where the run of bytes equal to `value` that begins at `begin` ends.
int runEnd(const std::uint8_t* bytes, std::uint8_t value, int begin, int end) {
    constexpr int step = 8;
    const std::uint64_t pattern = value * 0x0101010101010101U;
    std::uint64_t word = 0;
    while (begin + step <= end) {
        std::memcpy(&word, bytes + begin, step);
        if (word != pattern) {
            break;
        }
        begin += step;
    }
    while (begin < end && bytes[begin] == value) {
        ++begin;
    }
    return begin;
}

// Where the run of bytes other than `value` that begins at `begin` ends.
int otherEnd(const std::uint8_t* bytes, std::uint8_t value, int begin, int end) {
    const void* const found =
        std::memchr(bytes + begin, value, static_cast<std::size_t>(end - begin));
    return found == nullptr ? end
                            : static_cast<int>(static_cast<const std::uint8_t*>(found) - bytes);
}

void blend(quint32* row, const quint32* ground, const std::uint8_t* mask, int count,
           quint32 phase) {
    // Where an edge crosses the row it is a pixel or two wide: done before the loops have begun.
    constexpr int few = 3;
    if (count > few) {
        pixelKernels().blend(row, ground, mask, count, phase);
        return;
    }
    for (int i = 0; i < count; ++i) {
        row[i] = Pixels::blendPixel(ground[i], row[i], mask[i], phase);
        phase += Pixels::patternStepX;
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
        const double growth = (to[i] - from[i]) * one;
        origin_[i] = static_cast<std::int32_t>(std::lround(from[i] * one + growth * first));
        right_[i] = static_cast<std::int32_t>(std::lround(growth * slope_.x()));
        down_[i] = static_cast<std::int32_t>(std::lround(growth * slope_.y()));
    }
}

void BandGradient::paintRow(quint32* row, const quint32* ground, const std::uint8_t* mask,
                            int count, int x, int y) const {
    constexpr std::uint8_t none = 0;
    constexpr std::uint8_t whole = 255;
    const Row gradient = across(y);
    int end = 0;
    while (end < count) {
        int begin = end;
        end = runEnd(mask, none, begin, count);
        std::copy(ground + begin, ground + end, row + begin);
        begin = end;
        end = otherEnd(mask, none, begin, count);
        fill(row + begin, end - begin, x + begin, y, gradient);
        while ((begin = runEnd(mask, whole, begin, end)) < end) {
            const int edge = begin;
            begin = otherEnd(mask, whole, edge, end);
            blend(row + edge, ground + edge, mask + edge, begin - edge, Pixels::phase(x + edge, y));
        }
    }
}

BandGradient::Row BandGradient::across(int y) const {
    constexpr int far = std::numeric_limits<int>::max() / 2;
    const quint32 tail = solid(channels(tailColour));
    const quint32 head = solid(channels(Garden::mint));
    // How far the row's left end is on the way from tail to head.
    const double start = QPointF::dotProduct(QPointF(0.5, y + 0.5) - tail_, slope_);
    if (slope_.x() == 0) {
        const bool between = start >= 0 && start <= 1;
        return {between ? -far : far, far, start < 0 ? tail : head, head};
    }
    const auto pixelWhere = [&](double part) {
        return static_cast<int>(
            std::ceil(std::clamp((part - start) / slope_.x(), -double{far}, double{far})));
    };
    return slope_.x() > 0 ? Row{pixelWhere(0), pixelWhere(1), tail, head}
                          : Row{pixelWhere(1), pixelWhere(0), head, tail};
}

void BandGradient::fill(quint32* pixels, int count, int x, int y, const Row& row) const {
    const int begin = std::clamp(row.begin - x, 0, count);
    const int end = std::clamp(row.end - x, begin, count);
    std::fill_n(pixels, begin, row.before);
    fillSlope(pixels + begin, end - begin, x + begin, y);
    std::fill_n(pixels + end, count - end, row.after);
}

void BandGradient::fillSlope(quint32* pixels, int count, int x, int y) const {
    PixelKernels::Slope slope{};
    for (std::size_t i = 0; i < origin_.size(); ++i) {
        slope.first[i] = static_cast<quint32>(origin_[i] + x * right_[i] + y * down_[i]);
        slope.growth[i] = static_cast<quint32>(right_[i]);
    }
    pixelKernels().fillSlope(pixels, count, Pixels::phase(x, y), slope);
}
