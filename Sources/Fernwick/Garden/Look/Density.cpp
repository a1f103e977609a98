#include "Garden/Look/Density.hpp"

#include <algorithm>

namespace Garden {

namespace {

// In points.
constexpr int smallestText = 8;

}  // namespace

Density densityFor(double available, const ContentHeight& contents) {
    const double missing = std::max(0.0, contents.full - available);
    return {std::max(leastAir, 1 - missing / contents.air),
            std::min(1.0, available / contents.least)};
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
