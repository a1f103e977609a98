#include "Painting/Board/IdlePicture.hpp"

#include <algorithm>
#include <array>
#include <cmath>

#include "Garden/Look/Palette.hpp"
#include "Painting/Board/BoardPicture.hpp"
#include "Painting/Raster/Composing.hpp"
#include "Painting/Raster/GaussianBlur.hpp"
#include "Painting/Raster/PixelKernels.hpp"
#include "Painting/Raster/Upsampling.hpp"

namespace {

using Painting::Plane;

constexpr float opacity = 0.4F;
/// Of the blur, in points.
constexpr double sigma = 5;

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
    using Channel = Plane<float>;
    Planes planes{Channel(width, height), Channel(width, height), Channel(width, height)};
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

// Three samples per two sigmas are enough for a blurred picture.
int stepOf(const Painting::PixelGrid& grid) {
    return std::max(static_cast<int>(sigma * grid.scale / 1.5), 1);
}

Planes blurred(const SnakeCore::Game& game, const Painting::PixelGrid& grid, int step) {
    const Painting::PixelGrid small = reduced(grid, step);
    Painting::BoardPicture picture(small);
    picture.show(game);
    const QSizeF part(QSizeF(grid.size) / step - QSizeF(small.size) + QSizeF(1, 1));
    Planes planes = planesOf(picture.image(), part);
    const double samples = sigma * small.scale;
    // Averaging and linear interpolation blur as well. Their variances, 1/12 and 1/6 of a squared
    // sample, are taken off that of the Gaussian.
    const double resampling = step > 1 ? 0.25 : 0;
    Painting::gaussianBlur(planes, std::sqrt(std::max(samples * samples - resampling, 0.01)));
    return planes;
}

}  // namespace

namespace Painting {

/// Enlarges the rows of one rectangle, from top to bottom.
class IdlePicture::Rows {
public:
    Rows(const IdlePicture& picture, const QRect& area)
        : picture_(picture),
          left_(area.left()),
          channels_{row(0, area), row(1, area), row(2, area)} {}

    void operator()(const Scanline& line) {
        const auto [sample, weight] = picture_.rows_[line.y];
        PixelKernels::BilinearColour colour{Garden::soil.rgb(), {}, {}, weight};
        for (std::size_t channel = 0; channel < channels_.size(); ++channel) {
            channels_[channel].seek(sample);
            colour.upper[channel] = channels_[channel].upper() + (line.x - left_);
            colour.lower[channel] = channels_[channel].lower() + (line.x - left_);
        }
        pixelKernels().fillBilinear(line, colour, opacity);
    }

private:
    [[nodiscard]] UpsampledRows<float> row(std::size_t channel, const QRect& area) const {
        return {picture_.planes_[channel], picture_.columns_, area.left(), area.width()};
    }

    const IdlePicture& picture_;
    int left_;
    std::array<UpsampledRows<float>, 3> channels_;
};

IdlePicture::IdlePicture(const SnakeCore::Game& game, const PixelGrid& grid)
    : IdlePicture(game, grid, stepOf(grid)) {}

IdlePicture::IdlePicture(const SnakeCore::Game& game, const PixelGrid& grid, int step)
    : bounds_(QPoint(), grid.size),
      planes_(blurred(game, grid, step)),
      columns_(grid.size.width(), planes_[0].width(), step),
      rows_(grid.size.height(), planes_[0].height(), step) {}

void IdlePicture::paint(QPainter& painter, const QRect& area) const {
    drawComposed(painter, area & bounds_, Rows(*this, area & bounds_));
}

QImage IdlePicture::image() const {
    return composedImage(bounds_, Rows(*this, bounds_));
}

}  // namespace Painting
