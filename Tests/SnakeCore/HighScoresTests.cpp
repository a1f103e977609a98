#include <gtest/gtest.h>

#include <concepts>
#include <string>
#include <type_traits>

#include "SnakeCore/HighScores.hpp"
#include "SnakeCore/Tables.hpp"

namespace SnakeCore {
namespace {

static_assert(std::regular<HighScores>);
static_assert(std::equality_comparable<HighScore> && std::copyable<HighScore>);
static_assert(
    !std::is_constructible_v<HighScore, UUID, std::string, std::int64_t, std::string, Date>);
static_assert(!std::is_convertible_v<std::optional<std::string_view>, HighScores>);

TEST(HighScores, recordsARunUnderItsCleanedName) {
    HighScores table;

    EXPECT_TRUE(table.record(identity(1), "  Pip\t  Green\n", 120, "Classic", {7.5}));

    ASSERT_EQ(table.entries().size(), 1U);
    const HighScore& entry = table.entries()[0];
    EXPECT_EQ(entry.id, identity(1));
    EXPECT_EQ(entry.name, "Pip Green");
    EXPECT_EQ(entry.score, 120);
    EXPECT_EQ(entry.pace, "Classic");
    EXPECT_EQ(entry.date, Date{7.5});
}

TEST(HighScores, rejectsABlankName) {
    HighScores table;

    EXPECT_FALSE(table.record(identity(1), "  ", 120, "Classic", {}));
    EXPECT_FALSE(table.record(identity(1), "", 120, "Classic", {}));
    EXPECT_EQ(table, HighScores());
}

TEST(HighScores, rejectsANegativeScore) {
    HighScores table;

    EXPECT_FALSE(table.record(identity(1), "Pip", -1, "Classic", {}));
    EXPECT_EQ(table, HighScores());
}

TEST(HighScores, recordsAScoreOfZero) {
    HighScores table;

    EXPECT_TRUE(table.record(identity(1), " A ", 0, "Classic", {}));
    EXPECT_EQ(table.entries().at(0).name, "A");
}

TEST(HighScores, recordsARunOnlyOnce) {
    HighScores table;

    EXPECT_TRUE(table.record(identity(1), "Pip", 10, "Classic", {1}));
    const HighScores before = table;
    EXPECT_FALSE(table.record(identity(1), "Pip", 10, "Classic", {1}));
    EXPECT_FALSE(table.record(identity(1), "Other", 990, "Swift", {2}));

    EXPECT_EQ(table, before);
}

TEST(HighScores, recordsARunOnlyOnceEvenAfterReloading) {
    HighScores table(tableOf({}));

    EXPECT_FALSE(table.record(UUID::parse("0e9a3d52-6c1b-4e8f-9a57-2f4d1b6c8e30").value(), "Pip",
                              10, "Classic", {}));
    EXPECT_EQ(table.entries().size(), 1U);
}

TEST(HighScores, keepsEveryRunInTheOrderRecorded) {
    HighScores table;
    for (unsigned i = 0; i < 200; ++i) {
        ASSERT_TRUE(table.record(identity(i), "Pip", (i * 37) % 100, "Classic", {-1.0 * i}));
    }

    ASSERT_EQ(table.entries().size(), 200U);
    for (unsigned i = 0; i < 200; ++i) {
        EXPECT_EQ(table.entries()[i].id, identity(i));
    }
}

TEST(HighScores, acceptsAnyStringAsPace) {
    HighScores table;

    EXPECT_TRUE(table.record(identity(1), "Pip", 10, "", {}));
    EXPECT_EQ(table.leaders("").size(), 1U);
}

TEST(HighScores, copiesAreIndependent) {
    HighScores table;
    table.record(identity(1), "Pip", 10, "Classic", {});
    const HighScores copy = table;

    table.record(identity(2), "Pip", 10, "Classic", {});

    EXPECT_EQ(copy.entries().size(), 1U);
    EXPECT_NE(copy, table);
}

TEST(HighScores, comparesEveryFieldOfAnEntry) {
    const HighScores table(tableOf({}));
    const auto otherwise = [](auto change) {
        EntryText entry;
        change(entry);
        return HighScores(tableOf(entry));
    };

    EXPECT_EQ(table, otherwise([](EntryText&) {}));
    EXPECT_NE(table, otherwise([](EntryText& entry) { entry.id.replace(1, 1, "1"); }));
    EXPECT_NE(table, otherwise([](EntryText& entry) { entry.name = "\"pip\""; }));
    EXPECT_NE(table, otherwise([](EntryText& entry) { entry.score = "130"; }));
    EXPECT_NE(table, otherwise([](EntryText& entry) { entry.pace = "\"Swift\""; }));
    EXPECT_NE(table, otherwise([](EntryText& entry) { entry.date = "784598400.25"; }));
}

}  // namespace
}  // namespace SnakeCore
