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

/// The same cleaning in three separate passes over lists of scalars.
Characters referenceCleaned(std::string_view name) {
    std::vector<std::vector<char32_t>> words(1);
    for (const auto& character : charactersOf(scalarsOf(name))) {
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

/// A word that begins with a mark puts it on the joining space, which makes it a white space of
/// its own kind: only such names change again.
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

/// The joining space may be the last character; a space that belongs to the character before it
/// is none.
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
    require(cleaned == textOf(expected), "cleaned as the reference cleans");
    require(charactersOf(scalarsOf(cleaned)).size() <= longestName, "at most 24 characters");
    if (!hasMarkedSpace(expected)) {
        require(HighScores::cleanName(cleaned) == textOf(withoutTrailingSpace(expected)),
                "a clean name changes by its trailing space at most");
    }
    return 0;
}
