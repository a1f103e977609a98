#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <string>
#include <tuple>
#include <vector>

#include "SnakeCore/HighScores.hpp"
#include "SnakeCore/Tables.hpp"

namespace SnakeCore {
namespace {

std::vector<UUID> idsOf(const std::vector<HighScore>& entries) {
    std::vector<UUID> ids;
    for (const HighScore& entry : entries) {
        ids.push_back(entry.id);
    }
    return ids;
}

TEST(Leaders, areTheBestTenOfOnePace) {
    HighScores table;
    for (unsigned i = 0; i < 12; ++i) {
        table.record(identity(i), "Pip", 10 * ((i * 7) % 12), "Classic", {});
    }
    for (unsigned i = 12; i < 15; ++i) {
        table.record(identity(i), "Pip", 1000, "Gentle", {});
    }

    const auto leaders = table.leaders("Classic");

    ASSERT_EQ(leaders.size(), 10U);
    for (std::int64_t rank = 0; rank < 10; ++rank) {
        EXPECT_EQ(leaders[static_cast<std::size_t>(rank)].score, 110 - 10 * rank);
        EXPECT_EQ(leaders[static_cast<std::size_t>(rank)].pace, "Classic");
    }
    EXPECT_EQ(table.leaders("Gentle").size(), 3U);
    EXPECT_TRUE(table.leaders("classic").empty());
    EXPECT_TRUE(table.leaders("").empty());
}

TEST(Leaders, areEmptyForAnEmptyTable) {
    EXPECT_TRUE(HighScores().leaders("Classic").empty());
}

TEST(Leaders, putTheEarlierOfEqualScoresFirst) {
    HighScores olderFirst;
    olderFirst.record(identity(1), "Pip", 50, "Classic", {100});
    olderFirst.record(identity(2), "Pip", 50, "Classic", {200});
    HighScores newerFirst;
    newerFirst.record(identity(2), "Pip", 50, "Classic", {200});
    newerFirst.record(identity(1), "Pip", 50, "Classic", {100});

    const std::vector expected{identity(1), identity(2)};
    EXPECT_EQ(idsOf(olderFirst.leaders("Classic")), expected);
    EXPECT_EQ(idsOf(newerFirst.leaders("Classic")), expected);
}

TEST(Leaders, putAHigherScoreBeforeAnEarlierOne) {
    HighScores table;
    table.record(identity(1), "Pip", 50, "Classic", {-1e9});
    table.record(identity(2), "Pip", 60, "Classic", {1e9});

    EXPECT_EQ(idsOf(table.leaders("Classic")), (std::vector{identity(2), identity(1)}));
}

TEST(Leaders, sortEqualScoresAndDatesById) {
    const std::vector ids{identity(0x1), identity(0x9), identity(0xA), identity(0xF),
                          identity(0x10)};
    HighScores table;
    for (const std::size_t i : {3U, 0U, 4U, 2U, 1U}) {
        table.record(ids[i], "Pip", 50, "Classic", {5});
    }

    EXPECT_EQ(idsOf(table.leaders("Classic")), ids);
}

TEST(Leaders, dropTheLatestOfEqualScores) {
    HighScores table;
    for (unsigned i = 0; i < 10; ++i) {
        table.record(identity(i), "Pip", 50, "Classic", {10.0 + i});
    }
    table.record(identity(10), "Pip", 50, "Classic", {1});
    table.record(identity(11), "Pip", 50, "Classic", {100});

    const auto leaders = table.leaders("Classic");

    EXPECT_EQ(leaders.front().id, identity(10));
    EXPECT_EQ(leaders.back().id, identity(8));
}

TEST(Leaders, keepTheOrderOfEntriesThatAreEqualInEverything) {
    // record() rejects an id that is in the table already; only JSON can hold one several times.
    std::string stored = "[";
    for (char name = 'a'; name < 'a' + 12; ++name) {
        EntryText entry;
        entry.name = {'"', name, '"'};
        stored += (stored.size() > 1 ? "," : "") + entry.text();
    }

    std::string names;
    for (const HighScore& leader : HighScores(stored + "]").leaders("Classic")) {
        names += leader.name;
    }

    EXPECT_EQ(names, "abcdefghij");
}

TEST(Leaders, doNotChangeTheTable) {
    HighScores table;
    table.record(identity(1), "Pip", 50, "Classic", {});
    table.record(identity(2), "Pip", 60, "Classic", {});
    const HighScores before = table;

    EXPECT_EQ(table.leaders("Classic").size(), 2U);

    EXPECT_EQ(table, before);
}

RC_GTEST_PROP(Leaders, areTheFirstTenAfterAStableSort, (const std::vector<unsigned>& dice)) {
    HighScores table;
    unsigned next = 0;
    for (const unsigned die : dice) {
        // Few distinct values, so that ties are common, and unsorted ids.
        table.record(identity((next++ * 40503U) % 65536U), "Pip", die % 3,
                     die % 5 == 0 ? "Gentle" : "Classic", {static_cast<double>(die / 3 % 3)});
    }
    std::vector<HighScore> expected;
    std::ranges::copy_if(table.entries(), std::back_inserter(expected),
                         [](const HighScore& entry) { return entry.pace == "Classic"; });
    std::ranges::stable_sort(expected, [](const HighScore& left, const HighScore& right) {
        return std::tuple(-left.score, left.date.seconds, left.id.string()) <
               std::tuple(-right.score, right.date.seconds, right.id.string());
    });
    while (expected.size() > 10) {
        expected.pop_back();
    }

    RC_ASSERT(table.leaders("Classic") == expected);
}

}  // namespace
}  // namespace SnakeCore
