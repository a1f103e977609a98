#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

#include "SnakeCore/HighScores.hpp"
#include "SnakeCore/Tables.hpp"

namespace SnakeCore {
namespace {

HighScores tableWith(std::string_view name, std::int64_t score, std::string_view pace, Date date) {
    HighScores table;
    table.record(UUID::parse("0e9a3d52-6c1b-4e8f-9a57-2f4d1b6c8e30").value(), name, score, pace,
                 date);
    return table;
}

std::string encodedWithPace(std::string_view pace) {
    return tableWith("Pip", 120, pace, {784598400.5}).encoded();
}

std::string expectedWithPace(const std::string& json) {
    EntryText entry;
    entry.pace = json;
    return tableOf(entry);
}

std::string dateIn(double seconds) {
    const std::string json = tableWith("Pip", 1, "Classic", {seconds}).encoded();
    const std::size_t start = json.find("\"date\":") + 7;
    return json.substr(start, json.find('}') - start);
}

TEST(TableWriting, writesCompactJsonWithMembersInOrder) {
    EXPECT_EQ(tableWith("Pip", 120, "Classic", {784598400.5}).encoded(),
              R"([{"id":"0E9A3D52-6C1B-4E8F-9A57-2F4D1B6C8E30","name":"Pip","score":120,)"
              R"("pace":"Classic","date":784598400.5}])");
}

TEST(TableWriting, writesAnEmptyTableAsAnEmptyArray) {
    EXPECT_EQ(HighScores().encoded(), "[]");
}

TEST(TableWriting, separatesEntriesByCommas) {
    HighScores table;
    table.record(identity(1), "A", 1, "B", {2});
    table.record(identity(2), "C", 3, "D", {4});

    EXPECT_EQ(table.encoded(),
              R"([{"id":"00000000-0000-4000-8000-000000000001","name":"A","score":1,"pace":"B",)"
              R"("date":2},{"id":"00000000-0000-4000-8000-000000000002","name":"C","score":3,)"
              R"("pace":"D","date":4}])");
}

TEST(TableWriting, escapesSlashesQuotesAndBackslashes) {
    EXPECT_EQ(encodedWithPace("a/b\"c\\d"), expectedWithPace(R"("a\/b\"c\\d")"));
}

TEST(TableWriting, escapesOnlyTheControlCharactersOfJson) {
    EXPECT_EQ(encodedWithPace("\b\f\n\r\t"), expectedWithPace(R"("\b\f\n\r\t")"));
    EXPECT_EQ(encodedWithPace(std::string("\0\x01\x0b\x0e\x1f", 5)),
              expectedWithPace(R"("\u0000\u0001\u000b\u000e\u001f")"));
    EXPECT_EQ(encodedWithPace("\x7f\u0080\u2028\ufeff"),
              expectedWithPace("\"\x7f\u0080\u2028\ufeff\""));
}

TEST(TableWriting, writesOtherTextAsRawUtf8) {
    EXPECT_EQ(encodedWithPace("é 한 😀 <&>'"), expectedWithPace("\"é 한 😀 <&>'\""));
}

TEST(TableWriting, writesAnIntegralDateWithoutAFraction) {
    EXPECT_EQ(dateIn(0), "0");
    EXPECT_EQ(dateIn(784598400), "784598400");
    EXPECT_EQ(dateIn(-1), "-1");
    EXPECT_EQ(dateIn(1e15), "1000000000000000");
}

TEST(TableWriting, writesTheShortestDigitsOfADate) {
    EXPECT_EQ(dateIn(784598400.1), "784598400.1");
    EXPECT_EQ(dateIn(-0.5), "-0.5");
    EXPECT_EQ(dateIn(0.1 + 0.2), "0.30000000000000004");
}

TEST(TableWriting, keepsTheSignOfNegativeZero) {
    const HighScores loaded(tableWith("Pip", 1, "Classic", {-0.0}).encoded());

    EXPECT_TRUE(std::signbit(loaded.entries().at(0).date.seconds));
}

TEST(TableWriting, throwsIfADateIsNotFinite) {
    for (const double date :
         {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
          std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_THROW(static_cast<void>(tableWith("Pip", 1, "Classic", {date}).encoded()),
                     std::invalid_argument);
    }
}

TEST(TableWriting, throwsIfAPaceIsNotUtf8) {
    EXPECT_THROW(static_cast<void>(encodedWithPace("\xff")), std::invalid_argument);
    EXPECT_THROW(static_cast<void>(encodedWithPace("\xed\xa0\x80")), std::invalid_argument);
}

TEST(TableWriting, roundTripsTheLimitsOfNumbers) {
    using Limits = std::numeric_limits<double>;
    for (const double date : {Limits::max(), Limits::lowest(), Limits::min(), Limits::denorm_min(),
                              0x1p53 + 2, 1e16, 1e22, 123456789.123456789}) {
        const HighScores table =
            tableWith("Pip", std::numeric_limits<std::int64_t>::max(), "Classic", {date});
        EXPECT_EQ(HighScores(table.encoded()), table) << date;
    }
}

RC_GTEST_PROP(TableWriting, roundTripsEveryDoubleExactly, (std::uint64_t bits)) {
    const auto seconds = std::bit_cast<double>(bits);
    RC_PRE(std::isfinite(seconds));

    const HighScores loaded(tableWith("Pip", 1, "Classic", {seconds}).encoded());

    RC_ASSERT(std::bit_cast<std::uint64_t>(loaded.entries().at(0).date.seconds) == bits);
}

RC_GTEST_PROP(TableWriting, roundTripsEveryTable,
              (const std::vector<std::vector<std::uint8_t>>& names)) {
    HighScores table;
    unsigned next = 0;
    for (const auto& bytes : names) {
        std::string name = "x";
        for (const std::uint8_t byte : bytes) {
            name += static_cast<char>(byte % 0x80);
        }
        table.record(identity(next), name, next * 10, name, {next / 7.0});
        ++next;
    }

    RC_ASSERT(HighScores(table.encoded()) == table);
    RC_ASSERT(HighScores(table.encoded()).encoded() == table.encoded());
}

}  // namespace
}  // namespace SnakeCore
