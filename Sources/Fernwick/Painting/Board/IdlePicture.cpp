#include "Painting/Board/IdlePicture.hpp"

#include <algorithm>
#include <array>
#include <cmath>

#include "Garden/Look/Palette.hpp"
#include "Painting/Raster/GaussianBlur.hpp"
#include "Painting/Raster/Pixels.hpp"
#include "Painting/Raster/Upsampling.hpp"

namespace {

using Painting::Plane;
using Painting::Rgb;
using Painting::SampleAxis;

constexpr float opacity = 0.4F;

// Red, green and blue, as differences from the plain fill: the blur takes zeros beyond the edges.
using Planes = std::array<Plane<float>, 3>;

constexpr std::array<int, 3> shifts{16, 8, 0};

int channelOf(quint32 pixel, int shift) {
    return static_cast<int>((pixel >> shift) & 0xFFU);
}

// Averages blocks of `step` by `step` pixels. Blocks that cross the edge are filled up with zeros.
Planes downsample(const QImage& picture, int step) {
    const Plane<float> empty((picture.width() + step - 1) / step,
                             (picture.height() + step - 1) / step);
    Planes planes{empty, empty, empty};
    const float share = 1.0F / static_cast<float>(step * step);
    const int wholeBlocks = picture.width() / step;
    for (int y = 0; y < picture.height(); ++y) {
        const quint32* const pixels = Painting::pixelsAt(picture, 0, y);
        for (std::size_t channel = 0; channel < planes.size(); ++channel) {
            float* const samples = planes[channel].row(y / step);
            const int shift = shifts[channel];
            const int fill = channelOf(Garden::soil.rgb(), shift);
            const auto difference = [&](int x) {
                return static_cast<float>(channelOf(pixels[x], shift) - fill);
            };
            for (int i = 0; i < wholeBlocks; ++i) {
                float sum = 0;
                for (int x = i * step; x < (i + 1) * step; ++x) {
                    sum += difference(x);
                }
                samples[i] += sum * share;
            }
            for (int x = wholeBlocks * step; x < picture.width(); ++x) {
                samples[wholeBlocks] += difference(x) * share;
            }
        }
    }
    return planes;
}

QImage upsample(const Planes& planes, const QSize& size, int step) {
    QImage picture(size, QImage::Format_RGB32);
    const SampleAxis columns(size.width(), planes[0].width(), step);
    const SampleAxis rows(size.height(), planes[0].height(), step);
    using Upsampled = Painting::UpsampledRows<float>;
    std::array<Upsampled, 3> upsampled{Upsampled(planes[0], columns, 0, size.width()),
                                       Upsampled(planes[1], columns, 0, size.width()),
                                       Upsampled(planes[2], columns, 0, size.width())};
    const Rgb fill = Rgb::of(Garden::soil);
    for (int y = 0; y < size.height(); ++y) {
        const auto [sample, rowWeight] = rows[y];
        for (Upsampled& channel : upsampled) {
            channel.seek(sample);
        }
        const auto value = [&upsampled, weight = rowWeight](std::size_t channel, int x) {
            const float upper = upsampled[channel].upper()[x];
            return upper + (upsampled[channel].lower()[x] - upper) * weight;
        };
        Painting::fillBlended(Painting::scanline(picture, picture.rect(), y), Garden::soil.rgb(),
                              opacity, [&](int x) {
                                  return Rgb{fill.red + value(0, x), fill.green + value(1, x),
                                             fill.blue + value(2, x)};
                              });
    }
    return picture;
}

}  // namespace

QImage Painting::idlePicture(const QImage& picture, double sigma) {
    // Three samples per two sigmas are enough for a blurred picture.
    const int step = std::max(static_cast<int>(sigma / 1.5), 1);
    const double samples = sigma / step;
    // Averaging and linear interpolation blur as well. Their variances, 1/12 and 1/6 of a squared
    // sample, are taken off that of the Gaussian.
    const double resampling = step > 1 ? 0.25 : 0;
    Planes planes = downsample(picture, step);
    for (Plane<float>& plane : planes) {
        gaussianBlur(plane, std::sqrt(std::max(samples * samples - resampling, 0.01)));
    }
    return upsample(planes, picture.size(), step);
}
