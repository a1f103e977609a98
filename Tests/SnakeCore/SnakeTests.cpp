#include <gtest/gtest.h>

#include <algorithm>
#include <concepts>
#include <deque>
#include <iterator>
#include <random>
#include <ranges>
#include <type_traits>

#include "SnakeCore/Game.hpp"
#include "SnakeCore/Snake.hpp"

namespace SnakeCore {
namespace {

static_assert(std::random_access_iterator<Snake::Iterator>);
static_assert(std::sentinel_for<Snake::Iterator, Snake::Iterator>);
static_assert(std::same_as<std::iter_value_t<Snake::Iterator>, Cell>);
static_assert(std::same_as<decltype(std::declval<const Game&>().snake()), const Snake&>);
static_assert(std::is_nothrow_move_constructible_v<Game> && std::copyable<Game>);
static_assert(std::equality_comparable<Game> && std::equality_comparable<Snake>);

TEST(Snake, isReadHeadFirst) {
    const Snake snake{{3, 2}, {2, 2}, {1, 2}};

    EXPECT_EQ(snake.size(), 3U);
    EXPECT_FALSE(snake.empty());
    EXPECT_EQ(snake.front(), (Cell{3, 2}));
    EXPECT_EQ(snake[1], (Cell{2, 2}));
    EXPECT_EQ(snake.back(), (Cell{1, 2}));
}

TEST(Snake, isWalkedInBothDirectionsAndByLeaps) {
    const Snake snake{{4, 0}, {3, 0}, {2, 0}, {1, 0}, {0, 0}};
    auto place = snake.begin();

    EXPECT_EQ(snake.end() - snake.begin(), 5);
    EXPECT_EQ(*(place + 3), (Cell{1, 0}));
    EXPECT_EQ(*(2 + place), (Cell{2, 0}));
    EXPECT_EQ(place[4], (Cell{0, 0}));
    EXPECT_EQ((place++)->x, 4);
    EXPECT_EQ((place--)->x, 3);
    EXPECT_EQ(place->x, 4);
    EXPECT_EQ(*--(place += 3), (Cell{2, 0}));
    EXPECT_LT(snake.begin(), place);
    EXPECT_EQ(place - 2, snake.begin());
}

TEST(Snake, worksWithTheLibrarysAlgorithms) {
    const Snake snake{{4, 0}, {3, 0}, {2, 0}, {1, 0}, {0, 0}};

    EXPECT_EQ(std::ranges::count(snake, Cell{2, 0}), 1);
    EXPECT_EQ(std::ranges::find(snake, Cell{1, 0}) - snake.begin(), 3);
    EXPECT_TRUE(std::equal(std::make_reverse_iterator(snake.end()),
                           std::make_reverse_iterator(snake.begin()),
                           std::deque<Cell>{{0, 0}, {1, 0}, {2, 0}, {3, 0}, {4, 0}}.begin()));
}

TEST(Snake, equalsAnotherWithTheSameCellsHoweverItGrew) {
    Snake moved{{2, 0}, {1, 0}, {0, 0}};
    moved.pushFront({3, 0});
    moved.popBack();

    EXPECT_EQ(moved, (Snake{{3, 0}, {2, 0}, {1, 0}}));
    EXPECT_NE(moved, (Snake{{3, 0}, {2, 0}}));
    EXPECT_NE(moved, (Snake{{3, 0}, {2, 0}, {1, 1}}));
}

TEST(Snake, keepsItsOrderThroughAnyGrowthAndMovement) {
    std::mt19937 dice(1);
    Snake snake{{0, 0}};
    std::deque<Cell> expected{{0, 0}};
    for (std::int64_t i = 1; i < 3000; ++i) {
        const Cell head{i, static_cast<std::int64_t>(dice() % 100)};
        snake.pushFront(head);
        expected.push_front(head);
        if (dice() % 3 != 0) {
            snake.popBack();
            expected.pop_back();
        }
        ASSERT_TRUE(std::ranges::equal(snake, expected)) << "after " << i;
    }

    EXPECT_GT(snake.size(), 500U);
}

TEST(Snake, isCopiedCellByCell) {
    Snake snake{{1, 0}, {0, 0}};
    const Snake copy = snake;

    snake.pushFront({2, 0});

    EXPECT_EQ(copy, (Snake{{1, 0}, {0, 0}}));
}

}  // namespace
}  // namespace SnakeCore
