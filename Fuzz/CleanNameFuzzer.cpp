#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "ReferenceText.hpp"
#include "Require.hpp"
#include "SnakeCore/HighScores.hpp"

namespace {

using namespace SnakeCore;

constexpr std::size_t longestName = 24;
using Characters = std::vector<std::vector<char32_t>>;

/// Reference implementation of cleanName(): three separate passes over lists of code points.
Characters referenceCleaned(std::string_view name) {
    std::vector<std::vector<char32_t>> words(1);
    for (const auto& character : charactersOf(codePointsOf(name))) {
        if (isWhiteSpace(character[0])) {
            words.emplace_back();
        } else {
            words.back().insert(words.back().end(), character.begin(), character.end());
        }
    }
    std::erase_if(words, [](const auto& word) { return word.empty(); });
    std::vector<char32_t> joined;
    for (const auto& word : words) {
        if (!joined.empty()) {
            joined.push_back(U' ');
        }
        joined.insert(joined.end(), word.begin(), word.end());
    }
    Characters characters = charactersOf(joined);
    characters.resize(std::min(characters.size(), longestName));
    return characters;
}

/// Whether any space is followed by a combining mark. Cleaning such a name again removes the mark,
/// so it is the exception to the rule that cleaning is idempotent.
bool hasMarkedSpace(const Characters& characters) {
    return std::ranges::any_of(characters, [](const auto& character) {
        return character.size() > 1 && isWhiteSpace(character[0]);
    });
}

std::string textOf(const Characters& characters) {
    std::string text;
    for (const auto& character : characters) {
        text += utf8Of(character);
    }
    return text;
}

/// Removes the last character if it is a space. A space that is only part of it stays.
Characters withoutTrailingSpace(Characters characters) {
    if (!characters.empty() && characters.back() == std::vector<char32_t>{U' '}) {
        characters.pop_back();
    }
    return characters;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view name(reinterpret_cast<const char*>(data), size);
    const std::string cleaned = HighScores::cleanName(name);
    const Characters expected = referenceCleaned(name);
    require(cleaned == textOf(expected), "the cleaned name equals the reference's");
    require(charactersOf(codePointsOf(cleaned)).size() <= longestName,
            "a clean name has at most 24 characters");
    if (!hasMarkedSpace(expected)) {
        require(HighScores::cleanName(cleaned) == textOf(withoutTrailingSpace(expected)),
                "cleaning a clean name removes at most its trailing space");
    }
    return 0;
}
