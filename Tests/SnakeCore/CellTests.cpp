#include <gtest/gtest.h>

#include <limits>
#include <unordered_set>

#include "SnakeCore/Cell.hpp"

namespace SnakeCore {
namespace {

TEST(Cell, isEqualIfBothCoordinatesAre) {
    EXPECT_EQ((Cell{2, 3}), (Cell{2, 3}));
    EXPECT_NE((Cell{2, 3}), (Cell{3, 2}));
    EXPECT_NE((Cell{2, 3}), (Cell{2, 4}));
    EXPECT_NE((Cell{2, 3}), (Cell{1, 3}));
}

TEST(Cell, isStoredOnceInASet) {
    const std::unordered_set<Cell> cells{{1, 1}, {1, 1}, {0, 1}};

    EXPECT_EQ(cells.size(), 2U);
}

TEST(Cell, mayHaveAnyCoordinates) {
    const Cell cell{-1, std::numeric_limits<std::int64_t>::max()};

    EXPECT_EQ(cell.x, -1);
    EXPECT_EQ(cell.y, std::numeric_limits<std::int64_t>::max());
}

TEST(Cell, hasAssignableCoordinates) {
    Cell cell{1, 1};

    cell.x = 5;
    cell.y = -2;

    EXPECT_EQ(cell, (Cell{5, -2}));
}

TEST(Cell, hashDependsOnBothCoordinatesAndTheirOrder) {
    constexpr std::hash<Cell> hash;

    EXPECT_EQ(hash({3, 7}), hash({3, 7}));
    EXPECT_NE(hash({3, 7}), hash({7, 3}));
    EXPECT_NE(hash({3, 7}), hash({3, 8}));
    EXPECT_NE(hash({3, 7}), hash({4, 7}));
}

TEST(Cell, hashRarelyCollidesOnABoard) {
    std::unordered_set<std::size_t> hashes;
    for (std::int64_t y = 0; y < 22; ++y) {
        for (std::int64_t x = 0; x < 28; ++x) {
            hashes.insert(std::hash<Cell>{}({x, y}));
        }
    }

    EXPECT_GT(hashes.size(), 28U * 22U * 9U / 10U);
}

}  // namespace
}  // namespace SnakeCore
