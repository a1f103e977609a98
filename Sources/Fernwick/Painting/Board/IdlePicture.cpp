#include "Painting/Board/IdlePicture.hpp"

#include <algorithm>
#include <array>
#include <cmath>

#include "Garden/Look/Palette.hpp"
#include "Painting/Board/BoardPicture.hpp"
#include "Painting/Raster/GaussianBlur.hpp"
#include "Painting/Raster/PixelKernels.hpp"
#include "Painting/Raster/Upsampling.hpp"

namespace {

using Painting::Plane;
using Painting::SampleAxis;

constexpr float opacity = 0.4F;
/// Of the blur, in points.
constexpr double sigma = 5;

// Red, green and blue, as differences from the plain fill: the blur takes zeros beyond the edges.
using Planes = std::array<Plane<float>, 3>;

constexpr std::array<int, 3> shifts{16, 8, 0};

// The same board at 1 / step of the size. Its last column and row may extend beyond the picture.
Painting::PixelGrid reduced(const Painting::PixelGrid& grid, int step) {
    const auto samples = [step](int pixels) { return (pixels + step - 1) / step; };
    return {{samples(grid.size.width()), samples(grid.size.height())},
            grid.origin / step,
            grid.cell / step,
            grid.scale / step,
            grid.columns,
            grid.rows};
}

// `part` is how much of the last column and row lies inside the picture.
Planes planesOf(const QImage& picture, const QSizeF& part) {
    const int width = picture.width();
    const int height = picture.height();
    const Plane<float> empty(width, height);
    Planes planes{empty, empty, empty};
    for (std::size_t channel = 0; channel < planes.size(); ++channel) {
        const auto channelOf = [shift = shifts[channel]](quint32 pixel) {
            return static_cast<int>((pixel >> shift) & 0xFFU);
        };
        const int fill = channelOf(Garden::soil.rgb());
        for (int y = 0; y < height; ++y) {
            const quint32* const pixels = Painting::pixelsAt(picture, 0, y);
            float* const samples = planes[channel].row(y);
            const auto rowPart = static_cast<float>(y + 1 < height ? 1 : part.height());
            for (int x = 0; x < width; ++x) {
                samples[x] = static_cast<float>(channelOf(pixels[x]) - fill) * rowPart;
            }
            samples[width - 1] *= static_cast<float>(part.width());
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
    const auto& [red, green, blue] = upsampled;
    for (int y = 0; y < size.height(); ++y) {
        const auto [sample, rowWeight] = rows[y];
        for (Upsampled& channel : upsampled) {
            channel.seek(sample);
        }
        Painting::pixelKernels().fillBilinear(Painting::scanline(picture, picture.rect(), y),
                                              {Garden::soil.rgb(),
                                               {red.upper(), green.upper(), blue.upper()},
                                               {red.lower(), green.lower(), blue.lower()},
                                               rowWeight},
                                              opacity);
    }
    return picture;
}

}  // namespace

QImage Painting::idlePicture(const SnakeCore::Game& game, const PixelGrid& grid) {
    // Three samples per two sigmas are enough for a blurred picture.
    const int step = std::max(static_cast<int>(sigma * grid.scale / 1.5), 1);
    const PixelGrid small = reduced(grid, step);
    BoardPicture picture(small);
    picture.show(game);
    const QSizeF part(QSizeF(grid.size) / step - QSizeF(small.size) + QSizeF(1, 1));
    Planes planes = planesOf(picture.image(), part);
    const double samples = sigma * small.scale;
    // Averaging and linear interpolation blur as well. Their variances, 1/12 and 1/6 of a squared
    // sample, are taken off that of the Gaussian.
    const double resampling = step > 1 ? 0.25 : 0;
    for (Plane<float>& plane : planes) {
        gaussianBlur(plane, std::sqrt(std::max(samples * samples - resampling, 0.01)));
    }
    return upsample(planes, grid.size, step);
}
