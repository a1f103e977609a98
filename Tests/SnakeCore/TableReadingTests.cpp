#include <gtest/gtest.h>
#include <locale.h>

#include <limits>
#include <string>

#include "SnakeCore/HighScores.hpp"
#include "SnakeCore/Tables.hpp"

namespace SnakeCore {
namespace {

HighScore only(const EntryText& entry) {
    return HighScores(tableOf(entry)).entries().at(0);
}

std::int64_t scoreWritten(const std::string& number) {
    EntryText entry;
    entry.score = number;
    return only(entry).score;
}

double dateWritten(const std::string& number) {
    EntryText entry;
    entry.date = number;
    return only(entry).date.seconds;
}

TEST(TableReading, givesAnEmptyTableWithoutData) {
    EXPECT_TRUE(HighScores(std::nullopt).entries().empty());
    EXPECT_TRUE(HighScores("[]").entries().empty());
}

TEST(TableReading, readsEveryFieldOfAnEntry) {
    const HighScore entry = only({});

    EXPECT_EQ(entry.id.string(), "0E9A3D52-6C1B-4E8F-9A57-2F4D1B6C8E30");
    EXPECT_EQ(entry.name, "Pip");
    EXPECT_EQ(entry.score, 120);
    EXPECT_EQ(entry.pace, "Classic");
    EXPECT_EQ(entry.date, Date{784598400.5});
}

TEST(TableReading, keepsTheOrderOfTheEntries) {
    EntryText second;
    second.name = R"("Green")";

    const HighScores table("[" + EntryText().text() + "," + second.text() + "]");

    ASSERT_EQ(table.entries().size(), 2U);
    EXPECT_EQ(table.entries()[0].name, "Pip");
    EXPECT_EQ(table.entries()[1].name, "Green");
}

TEST(TableReading, acceptsMembersInAnyOrder) {
    const HighScores table(R"([{"date":1,"pace":"Swift","score":10,"name":"Pip",)"
                           R"("id":"0E9A3D52-6C1B-4E8F-9A57-2F4D1B6C8E30"}])");

    ASSERT_EQ(table.entries().size(), 1U);
    EXPECT_EQ(table.entries()[0].pace, "Swift");
}

TEST(TableReading, ignoresUnknownMembers) {
    EntryText entry;
    entry.more = R"(,"garden":{"id":7,"score":["x",{"name":null}]},"Score":"x","":true,"n":-1.5)";

    const HighScores table(tableOf(entry));

    ASSERT_EQ(table.entries().size(), 1U);
    EXPECT_EQ(table.encoded(), tableOf({}));
}

TEST(TableReading, usesTheFirstOfDuplicateMembers) {
    EntryText entry;
    entry.more = R"(,"score":990,"name":7,"id":null,"date":[1],"pace":{"pace":1})";

    EXPECT_EQ(HighScores(tableOf(entry)), HighScores(tableOf({})));
}

TEST(TableReading, acceptsWhiteSpaceBetweenTokens) {
    EXPECT_EQ(entriesIn(" \t\r\n[ " + EntryText().text() + "\n , " + EntryText().text() + " ]\n"),
              2U);
}

TEST(TableReading, ignoresAByteOrderMark) {
    EXPECT_EQ(entriesIn("\ufeff" + tableOf({})), 1U);
}

TEST(TableReading, acceptsAnIntegralScoreInAnyNotation) {
    EXPECT_EQ(scoreWritten("120.0"), 120);
    EXPECT_EQ(scoreWritten("1.2e2"), 120);
    EXPECT_EQ(scoreWritten("12E+1"), 120);
    EXPECT_EQ(scoreWritten("1200e-1"), 120);
    EXPECT_EQ(scoreWritten("-0"), 0);
    EXPECT_EQ(scoreWritten("-10"), -10);
}

TEST(TableReading, leavesTheLocaleOfTheThreadAsItWas) {
    ::uselocale(LC_GLOBAL_LOCALE);

    EXPECT_EQ(dateWritten("0.5"), 0.5);

    EXPECT_EQ(::uselocale(nullptr), LC_GLOBAL_LOCALE);
}

TEST(TableReading, acceptsScoresUpToTheLimits) {
    EXPECT_EQ(scoreWritten("9223372036854775807"), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(scoreWritten("-9223372036854775808"), std::numeric_limits<std::int64_t>::min());
}

TEST(TableReading, acceptsAnyNumberAsDate) {
    EXPECT_EQ(dateWritten("0"), 0);
    EXPECT_EQ(dateWritten("784598400"), 784598400);
    EXPECT_EQ(dateWritten("-1"), -1);
    EXPECT_EQ(dateWritten("-12.5"), -12.5);
    EXPECT_EQ(dateWritten("1e300"), 1e300);
    EXPECT_EQ(dateWritten("18446744073709551616"), 0x1p64);
    EXPECT_EQ(dateWritten("5e-324"), std::numeric_limits<double>::denorm_min());
}

TEST(TableReading, readsADateTooSmallForADoubleAsZero) {
    EXPECT_EQ(dateWritten("1.5e-400"), 0);
    EXPECT_EQ(dateWritten("-0.00001e-99999999999"), 0);
    EXPECT_EQ(dateWritten("2.6e-324"), std::numeric_limits<double>::denorm_min());
}

TEST(TableReading, decodesEscapeSequences) {
    EntryText escaped;
    escaped.name = R"("\u0050ip\/\ud83d\ude00\"\\\u00e9")";
    EntryText raw;
    raw.name = "\"Pip/😀\\\"\\\\é\"";

    EXPECT_EQ(only(escaped).name, "Pip/😀\"\\é");
    EXPECT_EQ(only(raw).name, only(escaped).name);
}

TEST(TableReading, doesNotCleanStoredNames) {
    EntryText entry;
    entry.name = R"("  not  cleaned ")";

    EXPECT_EQ(only(entry).name, "  not  cleaned ");
}

TEST(TableReading, acceptsAnIdInLowerCase) {
    EntryText entry;
    entry.id = R"("0e9a3d52-6c1b-4e8f-9a57-2f4d1b6c8e30")";

    EXPECT_EQ(HighScores(tableOf(entry)), HighScores(tableOf({})));
}

}  // namespace
}  // namespace SnakeCore
