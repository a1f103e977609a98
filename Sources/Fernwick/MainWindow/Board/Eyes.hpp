#pragma once

#include <QImage>
#include <SnakeCore/Game.hpp>

#include "MainWindow/Board/PixelGrid.hpp"

/// Paints the two eyes: a little ahead of the head's centre, side by side across the direction of
/// the last step. They lie inside the head's tile.
void paintEyes(QImage& picture, const PixelGrid& grid, const SnakeCore::Game& game);
