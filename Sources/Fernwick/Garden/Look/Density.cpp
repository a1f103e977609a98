#include "Garden/Look/Density.hpp"

#include <algorithm>

namespace Garden {

namespace {

// In points.
constexpr int smallestText = 8;

}  // namespace

double scaleForWidth(double available, const ContentSize& contents, double textScale) {
    return std::clamp(available / contents.width, 1.0, textScale);
}

Density densityFor(const QSize& available, const ContentSize& contents, double textScale) {
    const double wanted = scaleForWidth(available.width(), contents, textScale);
    const double missing = std::max(0.0, contents.full - available.height() / wanted);
    return {std::max(leastAir, 1 - missing / contents.air),
            std::min(
                {wanted, available.width() / contents.width, available.height() / contents.least})};
}

QFont scaled(const QFont& font, double scale) {
    const int size = scaled(font.pixelSize(), scale);
    QFont result = font;
    result.setPixelSize(std::max(size, std::min(smallestText, font.pixelSize())));
    if (font.letterSpacing() != 0) {
        result.setLetterSpacing(QFont::AbsoluteSpacing, font.letterSpacing() * scale);
    }
    return result;
}

}  // namespace Garden
