#include "Screens/Main/Arrangement.hpp"

#include <algorithm>

namespace {

// All lengths are in points.
constexpr QSize fullSize(820, 760);
constexpr QMargins fullPadding(38, 46, 38, 26);
constexpr int fullSpacing = 23;

constexpr int leastSide = 16;
constexpr int leastTop = 16;
constexpr int leastBottom = 12;
constexpr int leastSpacing = 12;
// The band's contents are lower than the band.
constexpr int leastBelowBand = 4;

// Width by height, and height by width.
constexpr double widestShape = 2;
constexpr double highestShape = 1.25;

// Header, controls and hints.
constexpr int rowsHeight = 130;
constexpr double boardRatio = 28.0 / 22;

// The width that the hints and the buttons need on one line, in the language with the longest.
constexpr int oneLineHints = 740;
// The width that the header and the controls need, in the language with the longest.
constexpr double widestRow = 575;
// The part of the height that the board keeps where texts are enlarged.
constexpr double leastBoardPart = 0.6;

constexpr int widestColumn = 264;
// Of full-sized contents.
constexpr int fullColumn = 244;
constexpr double leastColumnScale = 0.8;

// What is left of `full` when a length is `part` of the way from `least` to it.
double between(double least, double full, double part) {
    return least + (full - least) * std::clamp(part, 0.0, 1.0);
}

// How far `length` is on the way from `least` to `full`.
double portion(double length, double least, double full) {
    return (length - least) / (full - least);
}

double boardHeight(double width, double height) {
    return std::min(width / boardRatio, height);
}

// The middle of a window that is so wide or so high that rows and board would drift apart.
QRect bounded(const QSize& size) {
    const QSize bound =
        size.boundedTo({qRound(size.height() * widestShape), qRound(size.width() * highestShape)});
    return {QPoint((size.width() - bound.width()) / 2, (size.height() - bound.height()) / 2),
            bound};
}

// How far the rows above and below the board can be enlarged.
double scaleOfRows(const Arrangement& arrangement, double textScale) {
    const QSize content = arrangement.content.size();
    const double rows = content.height() * (1 - leastBoardPart) - 3 * arrangement.spacing;
    const double widest = std::min(content.width() / widestRow, rows / rowsHeight);
    return std::clamp(widest, 1.0, textScale);
}

}  // namespace

Arrangement arrangementFor(const QSize& size, int band, double textScale) {
    Arrangement result;
    const bool full = size.width() >= fullSize.width() && size.height() >= fullSize.height();
    const int leastTopHere = band > 0 ? band - leastBelowBand : leastTop;
    // The height at which only the air is missing.
    const int saved = fullPadding.top() - leastTopHere + fullPadding.bottom() - leastBottom +
                      3 * (fullSpacing - leastSpacing);
    const double high = portion(size.height(), fullSize.height() - saved, fullSize.height());
    const double wide = portion(
        size.width(), fullSize.width() - 2 * (fullPadding.left() - leastSide), fullSize.width());
    const auto shrunk = [](int least, int whole, double part) {
        return qRound(between(least, whole, part));
    };
    QMargins padding(shrunk(leastSide, fullPadding.left(), wide),
                     shrunk(leastTopHere, fullPadding.top(), high),
                     shrunk(leastSide, fullPadding.right(), wide),
                     shrunk(leastBottom, fullPadding.bottom(), high));
    result.spacing = shrunk(leastSpacing, fullSpacing, high);
    result.content = bounded(size).marginsRemoved(padding);
    const double rowsScale = scaleOfRows(result, textScale);
    result.foldedHints = result.content.width() < oneLineHints * rowsScale;
    result.rows.scale = rowsScale;
    result.hints.scale = rowsScale;
    if (full || high >= 0) {
        return result;
    }

    const int edge = std::clamp(size.height() / 30, 12, 24);
    const int top = band > 0 ? leastTopHere : edge;
    const double scale = std::clamp(std::min(size.height() / 450.0, size.width() / 800.0),
                                    leastColumnScale, textScale);
    const double leastColumnHere = fullColumn * scale;
    const double besideHeight =
        boardHeight(size.width() - 3 * edge - leastColumnHere, size.height() - top - edge);
    const double stackedHeight =
        boardHeight(result.content.width(),
                    result.content.height() - rowsHeight * rowsScale - 3 * result.spacing);
    if (besideHeight <= stackedHeight) {
        return result;
    }
    result.beside = true;
    result.spacing = edge;
    const int boardWidth = static_cast<int>(besideHeight * boardRatio);
    result.columnWidth = std::min(Garden::scaled(widestColumn, std::max(1.0, scale)),
                                  size.width() - 3 * edge - boardWidth);
    const int width = result.columnWidth + edge + boardWidth;
    result.content = {(size.width() - width) / 2, top, width, size.height() - top - edge};
    result.rows = {1, scale};
    // They are narrower than the rest, and in the smallest type.
    result.hints = {1, std::max(scale, (1 + scale) / 2)};
    return result;
}
