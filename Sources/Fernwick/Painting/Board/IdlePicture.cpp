#include "Painting/Board/IdlePicture.hpp"

#include <algorithm>
#include <array>
#include <cmath>

#include "Garden/Look/Palette.hpp"
#include "Painting/Raster/FloatPlane.hpp"
#include "Painting/Raster/Pixels.hpp"
#include "Painting/Raster/Upsampling.hpp"

namespace {

constexpr float opacity = 0.4F;

// One plane a channel, of the difference to the plain fill: zero beyond the edges.
using Planes = std::array<FloatPlane, 3>;

constexpr std::array<int, 3> shifts{16, 8, 0};

// Means of squares of `step` pixels. Those beyond the picture count as plain.
Planes shrink(const QImage& picture, int step) {
    const FloatPlane empty((picture.width() + step - 1) / step,
                           (picture.height() + step - 1) / step);
    Planes planes{empty, empty, empty};
    const float share = 1.0F / static_cast<float>(step * step);
    const quint32 plain = Garden::soil.rgb();
    for (int y = 0; y < picture.height(); ++y) {
        const auto* const pixels = reinterpret_cast<const quint32*>(picture.constScanLine(y));
        for (std::size_t channel = 0; channel < planes.size(); ++channel) {
            float* const sums = planes[channel].row(y / step);
            const int shift = shifts[channel];
            const int fill = static_cast<int>((plain >> shift) & 0xFFU);
            const auto take = [&](int x) {
                return static_cast<float>(static_cast<int>((pixels[x] >> shift) & 0xFFU) - fill);
            };
            const int whole = picture.width() / step;
            for (int i = 0; i < whole; ++i) {
                float sum = 0;
                for (int x = i * step; x < (i + 1) * step; ++x) {
                    sum += take(x);
                }
                sums[i] += sum * share;
            }
            for (int x = whole * step; x < picture.width(); ++x) {
                sums[whole] += take(x) * share;
            }
        }
    }
    return planes;
}

QImage enlarge(const Planes& planes, const QSize& size, int step) {
    QImage picture(size, QImage::Format_RGB32);
    const double perPixel = 1.0 / step;
    const double first = 0.5 * perPixel - 0.5;
    const SampleAxis columns(size.width(), planes[0].width, perPixel, first);
    const SampleAxis rows(size.height(), planes[0].height, perPixel, first);
    const auto widened = [&](const FloatPlane& plane) {
        return WidenedRows<float>(plane.values.data(), plane.width, columns, 0, size.width());
    };
    std::array<WidenedRows<float>, 3> pairs{widened(planes[0]), widened(planes[1]),
                                            widened(planes[2])};
    const Rgb plain = Rgb::of(Garden::soil);
    for (int y = 0; y < size.height(); ++y) {
        const auto [sample, below] = rows[y];
        for (WidenedRows<float>& pair : pairs) {
            pair.seek(sample);
        }
        const auto value = [&pairs, weight = below](std::size_t channel, int x) {
            const float upper = pairs[channel].upper()[x];
            return upper + (pairs[channel].lower()[x] - upper) * weight;
        };
        auto* const row = reinterpret_cast<quint32*>(picture.scanLine(y));
        Pixels::fillRow(row, size.width(), Pixels::phase(0, y), Garden::soil.rgb(), opacity,
                        [&](int x) {
                            return Rgb{plain.red + value(0, x), plain.green + value(1, x),
                                       plain.blue + value(2, x)};
                        });
    }
    return picture;
}

}  // namespace

QImage idlePicture(const QImage& picture, double sigma) {
    // Three samples to two sigmas are fine enough. Shrinking by means and enlarging by straight
    // lines blur a little themselves: by a twelfth and by a sixth of a sample, as variances.
    const int step = std::max(static_cast<int>(sigma / 1.5), 1);
    const double samples = sigma / step;
    Planes planes = shrink(picture, step);
    for (FloatPlane& plane : planes) {
        blur(plane, std::sqrt(std::max(samples * samples - (step > 1 ? 0.25 : 0), 0.01)));
    }
    return enlarge(planes, picture.size(), step);
}
