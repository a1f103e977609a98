#include "ReferenceText.hpp"

#include <unicode/uchar.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace SnakeCore {
namespace {

constexpr char32_t replacement = 0xFFFD;

/// The length of the UTF-8 sequence that begins with a byte, 0 if none does, and the range of its
/// second byte, from the table of well-formed sequences in the Unicode standard (table 3-7).
struct Sequence {
    std::size_t length;
    std::uint8_t least = 0x80;
    std::uint8_t most = 0xBF;
};

Sequence sequenceFrom(std::uint8_t first) {
    if (first < 0x80) {
        return {1};
    }
    if (first < 0xC2 || first > 0xF4) {
        return {0};
    }
    if (first < 0xE0) {
        return {2};
    }
    if (first < 0xF0) {
        const std::uint8_t least = first == 0xE0 ? 0xA0 : 0x80;
        const std::uint8_t most = first == 0xED ? 0x9F : 0xBF;
        return {3, least, most};
    }
    const std::uint8_t least = first == 0xF0 ? 0x90 : 0x80;
    const std::uint8_t most = first == 0xF4 ? 0x8F : 0xBF;
    return {4, least, most};
}

UGraphemeClusterBreak classOf(char32_t codePoint) {
    return static_cast<UGraphemeClusterBreak>(
        u_getIntPropertyValue(static_cast<UChar32>(codePoint), UCHAR_GRAPHEME_CLUSTER_BREAK));
}

bool isPictograph(char32_t codePoint) {
    return u_hasBinaryProperty(static_cast<UChar32>(codePoint), UCHAR_EXTENDED_PICTOGRAPHIC) != 0;
}

bool isControl(UGraphemeClusterBreak kind) {
    return kind == U_GCB_CONTROL || kind == U_GCB_CR || kind == U_GCB_LF;
}

/// Rules GB6 to GB8: a Hangul syllable.
bool staysOneSyllable(UGraphemeClusterBreak left, UGraphemeClusterBreak right) {
    switch (left) {
        case U_GCB_L:
            return right == U_GCB_L || right == U_GCB_V || right == U_GCB_LV || right == U_GCB_LVT;
        case U_GCB_LV:
        case U_GCB_V:
            return right == U_GCB_V || right == U_GCB_T;
        case U_GCB_LVT:
        case U_GCB_T:
            return right == U_GCB_T;
        default:
            return false;
    }
}

/// Rule GB11: an emoji joined to the one before it by a zero-width joiner.
bool joinsPictographs(const std::vector<char32_t>& codePoints, std::size_t index) {
    if (!isPictograph(codePoints[index]) || classOf(codePoints[index - 1]) != U_GCB_ZWJ) {
        return false;
    }
    std::size_t previous = index - 1;
    while (previous > 0 && classOf(codePoints[previous - 1]) == U_GCB_EXTEND) {
        --previous;
    }
    return previous > 0 && isPictograph(codePoints[previous - 1]);
}

/// Rules GB12 and GB13: flags are pairs of regional indicators.
bool completesFlag(const std::vector<char32_t>& codePoints, std::size_t index) {
    std::size_t before = 0;
    while (before < index && classOf(codePoints[index - 1 - before]) == U_GCB_REGIONAL_INDICATOR) {
        ++before;
    }
    return classOf(codePoints[index]) == U_GCB_REGIONAL_INDICATOR && before % 2 == 1;
}

bool breaksBefore(const std::vector<char32_t>& codePoints, std::size_t index) {
    const auto left = classOf(codePoints[index - 1]);
    const auto right = classOf(codePoints[index]);
    if (left == U_GCB_CR && right == U_GCB_LF) {
        return false;
    }
    if (isControl(left) || isControl(right)) {
        return true;
    }
    const bool staysTogether = staysOneSyllable(left, right) || right == U_GCB_EXTEND ||
                               right == U_GCB_ZWJ || right == U_GCB_SPACING_MARK ||
                               left == U_GCB_PREPEND || joinsPictographs(codePoints, index) ||
                               completesFlag(codePoints, index);
    return !staysTogether;
}

}  // namespace

std::vector<char32_t> codePointsOf(std::string_view bytes) {
    std::vector<char32_t> codePoints;
    for (std::size_t i = 0; i < bytes.size();) {
        const auto first = static_cast<std::uint8_t>(bytes[i]);
        const Sequence sequence = sequenceFrom(first);
        constexpr std::array<std::uint8_t, 5> firstBits{0, 0x7F, 0x1F, 0x0F, 0x07};
        char32_t codePoint = first & firstBits[sequence.length];
        std::size_t good = 1;
        for (; good < sequence.length && i + good < bytes.size(); ++good) {
            const auto next = static_cast<std::uint8_t>(bytes[i + good]);
            const std::uint8_t least = good == 1 ? sequence.least : 0x80;
            const std::uint8_t most = good == 1 ? sequence.most : 0xBF;
            if (next < least || next > most) {
                break;
            }
            codePoint = (codePoint << 6U) | (next & 0x3FU);
        }
        codePoints.push_back(good == sequence.length ? codePoint : replacement);
        i += good;
    }
    return codePoints;
}

std::string utf8Of(const std::vector<char32_t>& codePoints) {
    std::string bytes;
    const auto append = [&bytes](char32_t byte) { bytes += static_cast<char>(byte); };
    for (const char32_t codePoint : codePoints) {
        if (codePoint < 0x80) {
            append(codePoint);
        } else if (codePoint < 0x800) {
            append(0xC0 | codePoint >> 6U);
        } else if (codePoint < 0x10000) {
            append(0xE0 | codePoint >> 12U);
        } else {
            append(0xF0 | codePoint >> 18U);
            append(0x80 | (codePoint >> 12U & 0x3FU));
        }
        if (codePoint >= 0x800) {
            append(0x80 | (codePoint >> 6U & 0x3FU));
        }
        if (codePoint >= 0x80) {
            append(0x80 | (codePoint & 0x3FU));
        }
    }
    return bytes;
}

std::vector<std::vector<char32_t>> charactersOf(const std::vector<char32_t>& codePoints) {
    std::vector<std::vector<char32_t>> characters;
    for (std::size_t i = 0; i < codePoints.size(); ++i) {
        if (i == 0 || breaksBefore(codePoints, i)) {
            characters.emplace_back();
        }
        characters.back().push_back(codePoints[i]);
    }
    return characters;
}

bool isWhiteSpace(char32_t codePoint) {
    // All of White_Space, which has not changed since Unicode 6.3.
    constexpr std::array<char32_t, 9> singles{0x20,   0x85,   0xA0,   0x1680, 0x2028,
                                              0x2029, 0x202F, 0x205F, 0x3000};
    return (codePoint >= 0x09 && codePoint <= 0x0D) ||
           (codePoint >= 0x2000 && codePoint <= 0x200A) ||
           std::ranges::find(singles, codePoint) != singles.end();
}

}  // namespace SnakeCore
