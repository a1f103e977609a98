#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "SnakeCore/Graphemes.hpp"
#include "SnakeCore/HighScores.hpp"

namespace SnakeCore {
namespace {

std::string repeated(std::string_view piece, int count) {
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += piece;
    }
    return text;
}

std::string cleaned(std::string_view name) {
    return HighScores::cleanName(name);
}

/// Random names made of pieces that are hard to clean.
rc::Gen<std::string> names() {
    const auto piece = rc::gen::element<std::string>(
        "a", "Z", " ", "  ", "\t", "\n", "\r\n", "\u00a0", "\u3000", "é", "e\u0301", "👩\u200d🚀",
        "🇩", "🇪", "👍🏽", "한", "\u1112\u1161", "\u200b", "/", "\"", "\xff", "\xe2\x82");
    return rc::gen::map(rc::gen::container<std::vector<std::string>>(piece),
                        [](const std::vector<std::string>& pieces) {
                            std::string name;
                            for (const std::string& each : pieces) {
                                name += each;
                            }
                            return name;
                        });
}

TEST(CleanName, trimsAndCollapsesWhiteSpace) {
    EXPECT_EQ(cleaned("  Pip\t  Green\n"), "Pip Green");
    EXPECT_EQ(cleaned(" A "), "A");
    EXPECT_EQ(cleaned("a b"), "a b");
}

TEST(CleanName, isEmptyForABlankName) {
    EXPECT_EQ(cleaned(""), "");
    EXPECT_EQ(cleaned("   "), "");
    EXPECT_EQ(cleaned("\r\n\t\u2003"), "");
}

TEST(CleanName, recognizesEveryUnicodeWhiteSpaceCharacter) {
    for (const std::string_view space :
         {"\t",     "\n",     "\v",     "\f",     "\r",     "\r\n",   " ",      "\u0085", "\u00a0",
          "\u1680", "\u2000", "\u2001", "\u2002", "\u2003", "\u2004", "\u2005", "\u2006", "\u2007",
          "\u2008", "\u2009", "\u200a", "\u2028", "\u2029", "\u202f", "\u205f", "\u3000"}) {
        const std::string name = std::string(space) + "Pip" + std::string(space) + "Green" +
                                 std::string(space) + std::string(space);

        EXPECT_EQ(cleaned(name), "Pip Green") << ::testing::PrintToString(space);
    }
}

TEST(CleanName, keepsInvisibleCharactersThatAreNotWhiteSpace) {
    for (const std::string_view kept :
         {"\u200b", "\u2060", "\ufeff", "\u180e", "\u0001", "\u001f"}) {
        const std::string name = "Pip" + std::string(kept) + "Green";

        EXPECT_EQ(cleaned(name), name) << ::testing::PrintToString(kept);
    }
}

TEST(CleanName, keepsTheFirstTwentyFourLetters) {
    EXPECT_EQ(cleaned(repeated("x", 30)), repeated("x", 24));
    EXPECT_EQ(cleaned(repeated("x", 24)), repeated("x", 24));
    EXPECT_EQ(cleaned(repeated("x", 23)), repeated("x", 23));
}

TEST(CleanName, endsInASpaceIfThatIsTheTwentyFourthCharacter) {
    EXPECT_EQ(cleaned("abcdefghijklmnopqrstuvw xyz"), "abcdefghijklmnopqrstuvw ");
    EXPECT_EQ(cleaned("abcdefghijklmnopqrstuvw \t\n xyz"), "abcdefghijklmnopqrstuvw ");
}

TEST(CleanName, countsCharactersAfterTrimming) {
    EXPECT_EQ(cleaned(repeated(" ", 40) + repeated("x", 24) + "  "), repeated("x", 24));
}

TEST(CleanName, countsGraphemeClusters) {
    for (const std::string_view character :
         {"😀", "é", "e\u0301", "👍🏽", "👩\u200d🚀", "👨\u200d👩\u200d👧\u200d👦", "🇩🇪", "한",
          "\u1112\u1161\u11ab", "❤\ufe0f", "a\u0301\u0302\u0303\u0304"}) {
        EXPECT_EQ(cleaned(repeated(character, 30)), repeated(character, 24)) << character;
        EXPECT_EQ(cleaned(repeated(character, 24)), repeated(character, 24)) << character;
    }
}

TEST(CleanName, treatsASpaceWithACombiningMarkAsWhiteSpace) {
    EXPECT_EQ(cleaned("Pip \u0301Green"), "Pip Green");
}

TEST(CleanName, countsASpaceAndItsCombiningMarkAsOneCharacter) {
    EXPECT_EQ(cleaned("a\n\u0301" + repeated("x", 30)), "a \u0301" + repeated("x", 22));
}

TEST(CleanName, keepsASpaceThatIsPartOfTheCharacterBeforeIt) {
    EXPECT_EQ(cleaned("Pip \u0600 "), "Pip \u0600 ");
}

TEST(CleanName, replacesIllFormedUtf8) {
    EXPECT_EQ(cleaned("P\xffip"), "P\ufffdip");
    EXPECT_EQ(cleaned("\xe2\x82"), "\ufffd");
    EXPECT_EQ(cleaned("\xed\xa0\x80"), "\ufffd\ufffd\ufffd");
    EXPECT_EQ(cleaned("\xc0\xaf"), "\ufffd\ufffd");
}

TEST(CleanName, handlesAVeryLongName) {
    EXPECT_EQ(cleaned(repeated("word ", 200'000)), "word word word word word");
    EXPECT_EQ(cleaned("a" + repeated("\u0301", 100'000)), "a" + repeated("\u0301", 100'000));
}

RC_GTEST_PROP(CleanName, neverExceedsTwentyFourCharacters, ()) {
    const std::string name = cleaned(*names());

    RC_ASSERT(firstCharacters(name, 24) == name);
}

RC_GTEST_PROP(CleanName, appliedTwiceRemovesAtMostTheTrailingSpace, ()) {
    const std::string once = cleaned(*names());
    const bool endsInSpace = once.ends_with(' ');

    RC_CLASSIFY(endsInSpace);
    RC_ASSERT(cleaned(once) == (endsInSpace ? once.substr(0, once.size() - 1) : once));
}

}  // namespace
}  // namespace SnakeCore
