#pragma once

#include <QMargins>
#include <QRect>
#include <QSize>

#include "Garden/Look/Density.hpp"

/// How the main screen is laid out in a window of a certain size: the one place that decides it.
///
/// From 820 × 760 points on, everything has its full size. In smaller windows first the air goes:
/// padding and spacing. If that is not enough for the board and its cards at their full size, a
/// wide window gets the header, the speeds and the hints as a column beside the board instead of
/// rows above and below it.
struct Arrangement {
    bool beside = false;
    /// The part of the window that rows and board fill.
    QRect content;
    /// Between the rows and the board, or between the column and the board.
    int spacing = 0;
    /// 0 unless `beside`.
    int columnWidth = 0;
    /// Whether the row of hints needs two lines.
    bool foldedHints = false;
    /// Of header and controls.
    Garden::Density rows;
    Garden::Density hints;
};

/// The arrangement in a window of `size` whose uppermost `band` points are covered: 0 if none are.
/// `textScale`, at least 1, enlarges the rows as far as there is room.
[[nodiscard]] Arrangement arrangementFor(const QSize& size, int band, double textScale = 1);
