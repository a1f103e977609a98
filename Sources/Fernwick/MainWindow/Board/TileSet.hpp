#pragma once

#include <QRect>
#include <vector>

/// A set of grid cells: those to paint anew.
class TileSet {
public:
    TileSet(int columns, int rows);

    void add(int column, int row);
    /// Adds the cell and all within `reach` cells of it that are on the grid.
    void addAround(int column, int row, int reach);
    void addAll();

    [[nodiscard]] bool contains(int column, int row) const;
    /// Every member exactly once, as rectangles one row high, in cells. `split` decides for two
    /// neighbours in a row whether they have to go apart.
    template <typename Split>
    [[nodiscard]] std::vector<QRect> runs(Split split) const;
    [[nodiscard]] std::vector<QRect> runs() const;

private:
    int columns_;
    int rows_;
    std::vector<char> members_;
};

template <typename Split>
std::vector<QRect> TileSet::runs(Split split) const {
    std::vector<QRect> found;
    for (int row = 0; row < rows_; ++row) {
        for (int column = 0; column < columns_; ++column) {
            if (!contains(column, row)) {
                continue;
            }
            const int first = column;
            while (column + 1 < columns_ && contains(column + 1, row) && !split(column, row)) {
                ++column;
            }
            found.emplace_back(first, row, column - first + 1, 1);
        }
    }
    return found;
}
