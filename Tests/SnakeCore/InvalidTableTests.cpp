#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "SnakeCore/HighScores.hpp"
#include "SnakeCore/Tables.hpp"

namespace SnakeCore {
namespace {

/// A table of three entries with `entry` in the middle.
std::string amongOthers(const EntryText& entry) {
    return "[" + EntryText().text() + "," + entry.text() + "," + EntryText().text() + "]";
}

std::string manyOf(std::string_view piece, int count) {
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += piece;
    }
    return text;
}

using Member = std::string EntryText::*;

/// Expects a table to be rejected if one member of one entry has one of these JSON values.
void expectRejected(Member member, std::initializer_list<std::string_view> values) {
    for (const std::string_view value : values) {
        EntryText entry;
        entry.*member = value;
        EXPECT_EQ(entriesIn(amongOthers(entry)), 0U) << value;
    }
}

TEST(InvalidTable, rejectsWhatIsNotATable) {
    for (const std::string_view data : {"",
                                        " ",
                                        "{}",
                                        "null",
                                        "true",
                                        "1",
                                        "\"\"",
                                        "not JSON",
                                        "[",
                                        "]",
                                        "[}",
                                        "[,]",
                                        "[[]]",
                                        "[null]",
                                        "[1]",
                                        "[\"x\"]",
                                        "[{}]",
                                        "[[[]]]",
                                        "{\"entries\":[]}",
                                        "[]]",
                                        "[][]",
                                        "[],",
                                        "\xff",
                                        "\xef\xbb",
                                        "\xef\xbb\xbf"}) {
        EXPECT_EQ(entriesIn(data), 0U) << data;
    }
}

TEST(InvalidTable, rejectsATableTruncatedAtAnyByte) {
    EntryText last;
    last.name = "\"é😀\\u00e9\"";
    const std::string whole = "[" + EntryText().text() + "," + last.text() + "]";
    ASSERT_EQ(entriesIn(whole), 2U);

    for (std::size_t length = 0; length < whole.size(); ++length) {
        // An allocation of exactly this size, so that ASan detects reads past its end.
        const std::string cut(whole, 0, length);
        EXPECT_EQ(entriesIn(cut), 0U) << cut;
    }
}

TEST(InvalidTable, rejectsATableWithOneMemberOfTheWrongType) {
    expectRejected(&EntryText::id, {"null", "7", "true", "[]", "{}", "\"\"", "\"x\"",
                                    "\"0E9A3D526C1B4E8F9A572F4D1B6C8E30\"",
                                    "\"0E9A3D52-6C1B-4E8F-9A57-2F4D1B6C8E30\\u0000\""});
    expectRejected(&EntryText::name, {"null", "7", "7.5", "false", "[]", "{}", "[\"Pip\"]"});
    expectRejected(&EntryText::score, {"null", "\"120\"", "true", "[]", "{}", "[120]"});
    expectRejected(&EntryText::pace, {"null", "7", "-7", "false", "[]", "{}"});
    expectRejected(&EntryText::date, {"null", "\"784598400.5\"", "\"2025-11-11\"", "true", "[]",
                                      "{}", "{\"seconds\":1}"});
}

TEST(InvalidTable, rejectsAScoreThatIsNotA64BitInteger) {
    expectRejected(&EntryText::score,
                   {"120.5", "1e-1", "9223372036854775808", "-9223372036854775809",
                    "18446744073709551616", "9223372036854775808.0", "9.223372036854775808e18",
                    "1e19", "9.3e18", "-9.3e18", "1e400", "-1e400"});
}

TEST(InvalidTable, rejectsADateThatOverflowsADouble) {
    expectRejected(&EntryText::date, {"1e400", "-1e400", "1e99999999999", "Infinity", "NaN"});
}

TEST(InvalidTable, rejectsMalformedNumbers) {
    for (const std::string_view number :
         {"", "01", "+1", "1.", ".5", "1e", "1e+", "0x10", "1_000", "--1", "-", "1,5", "1 2"}) {
        expectRejected(&EntryText::score, {number});
        expectRejected(&EntryText::date, {number});
    }
}

TEST(InvalidTable, rejectsAnEntryWithAMissingMember) {
    for (const std::string_view member :
         {"\"id\"", "\"name\"", "\"score\"", "\"pace\"", "\"date\""}) {
        std::string entry = EntryText().text();
        entry.replace(entry.find(member), member.size(), "\"other\"");

        EXPECT_EQ(entriesIn("[" + EntryText().text() + "," + entry + "]"), 0U) << member;
    }
    EXPECT_EQ(entriesIn("[" + EntryText().text() + ",{}]"), 0U);
}

TEST(InvalidTable, doesNotFillMissingMembersFromAnEarlierEntry) {
    EXPECT_EQ(entriesIn("[" + EntryText().text() + R"(,{"name":"Pip"}])"), 0U);
}

TEST(InvalidTable, rejectsAWrongMemberFollowedByAValidDuplicate) {
    EntryText entry;
    entry.score = "\"120\"";
    entry.more = ",\"score\":120";

    EXPECT_EQ(entriesIn(tableOf(entry)), 0U);
}

TEST(InvalidTable, rejectsMalformedStrings) {
    expectRejected(
        &EntryText::name,
        {R"("\ud83d")", R"("\ude00")", R"("\ud83dx")", R"("\ud83d\u0041")", R"("\ude00\ud83d")",
         R"("\u12")", R"("\x41")", "\"\n\"", "\"\x01\"", "\"\xff\"", "\"\xc3\"", "\"\xe2\x82\"",
         "\"\xed\xa0\x80\"", "\"\xc0\xaf\"", "\"\xf4\x90\x80\x80\"", "'Pip'", "\"Pip"});
    EntryText entry;
    entry.more = ",\"other\":\"\xff\"";
    EXPECT_EQ(entriesIn(tableOf(entry)), 0U);
}

TEST(InvalidTable, rejectsAnythingAfterTheTable) {
    for (const std::string_view garbage : {"x", "]", "[]", ",", "null", "\xff", "//", "\ufeff"}) {
        EXPECT_EQ(entriesIn(tableOf({}) + std::string(garbage)), 0U) << garbage;
    }
    EXPECT_EQ(entriesIn(tableOf({}) + '\0'), 0U);
    EXPECT_EQ(entriesIn(tableOf({}) + '\0' + "x"), 0U);
}

TEST(InvalidTable, rejectsANulByteAnywhere) {
    const std::string whole = tableOf({});
    for (std::size_t i = 0; i <= whole.size(); ++i) {
        std::string data = whole;
        data.insert(i, 1, '\0');
        EXPECT_EQ(entriesIn(data), 0U) << "at " << i;
    }
}

TEST(InvalidTable, rejectsCommentsAndTrailingCommas) {
    EXPECT_EQ(entriesIn("[" + EntryText().text() + ",]"), 0U);
    EXPECT_EQ(entriesIn("/* */" + tableOf({})), 0U);
    EntryText entry;
    entry.more = ",";
    EXPECT_EQ(entriesIn(tableOf(entry)), 0U);
}

TEST(InvalidTable, rejectsAHundredThousandNestedBrackets) {
    for (const std::string_view bracket : {"[", "{", "[{", "{\"a\":", "[{\"a\":"}) {
        EXPECT_EQ(entriesIn(manyOf(bracket, 100'000)), 0U) << bracket;
    }
    EntryText entry;
    entry.more = ",\"deep\":" + manyOf("[", 100'000) + manyOf("]", 100'000);
    EXPECT_EQ(entriesIn(tableOf(entry)), 0U);
}

TEST(InvalidTable, rejectsNestingDeeperThan512Levels) {
    // The table and the entry are two levels themselves.
    EntryText entry;
    entry.more = ",\"deep\":" + manyOf("[", 510) + manyOf("]", 510);
    EXPECT_EQ(entriesIn(tableOf(entry)), 1U);

    entry.more = ",\"deep\":" + manyOf("[", 511) + manyOf("]", 511);
    EXPECT_EQ(entriesIn(tableOf(entry)), 0U);
}

}  // namespace
}  // namespace SnakeCore
