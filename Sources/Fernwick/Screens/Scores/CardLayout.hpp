#pragma once

#include <QVBoxLayout>
#include <QWidget>

/// The column layout of the game-over card and of its two parts: 14 points apart, no margins.
[[nodiscard]] inline QVBoxLayout* cardColumn(QWidget& owner) {
    constexpr int spacing = 14;
    auto* column = new QVBoxLayout(&owner);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(spacing);
    return column;
}
