#pragma once

#include <QVBoxLayout>
#include <QWidget>

/// The column of the game-over card and of its two branches: one spacing, no margins of its own.
[[nodiscard]] inline QVBoxLayout* cardColumn(QWidget& owner) {
    constexpr int spacing = 14;
    auto* column = new QVBoxLayout(&owner);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(spacing);
    return column;
}
