#include "MainWindow/Board/TileSet.hpp"

#include <algorithm>

TileSet::TileSet(int columns, int rows)
    : columns_(columns),
      rows_(rows),
      members_(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows)) {}

void TileSet::add(int column, int row) {
    members_[static_cast<std::size_t>(row * columns_ + column)] = 1;
}

void TileSet::addAround(int column, int row, int reach) {
    const int lastColumn = std::min(column + reach, columns_ - 1);
    const int lastRow = std::min(row + reach, rows_ - 1);
    for (int y = std::max(row - reach, 0); y <= lastRow; ++y) {
        for (int x = std::max(column - reach, 0); x <= lastColumn; ++x) {
            add(x, y);
        }
    }
}

void TileSet::addAll() {
    std::ranges::fill(members_, char{1});
}

bool TileSet::contains(int column, int row) const {
    return members_[static_cast<std::size_t>(row * columns_ + column)] != 0;
}

std::vector<QRect> TileSet::runs() const {
    return runs([](int, int) { return false; });
}
