#include "ReferenceText.hpp"

#include <unicode/uchar.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace SnakeCore {
namespace {

constexpr char32_t replacement = 0xFFFD;

/// What may stand as a character's second byte after `first`, from the table of well-formed
/// sequences; the length is 0 when `first` begins none.
struct Start {
    std::size_t length;
    std::uint8_t least = 0x80;
    std::uint8_t most = 0xBF;
};

Start startOf(std::uint8_t first) {
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

UGraphemeClusterBreak classOf(char32_t scalar) {
    return static_cast<UGraphemeClusterBreak>(
        u_getIntPropertyValue(static_cast<UChar32>(scalar), UCHAR_GRAPHEME_CLUSTER_BREAK));
}

bool isPictograph(char32_t scalar) {
    return u_hasBinaryProperty(static_cast<UChar32>(scalar), UCHAR_EXTENDED_PICTOGRAPHIC) != 0;
}

bool isControl(UGraphemeClusterBreak kind) {
    return kind == U_GCB_CONTROL || kind == U_GCB_CR || kind == U_GCB_LF;
}

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

/// A pictograph, any marks, a joiner and here the next pictograph.
bool joinsPictographs(const std::vector<char32_t>& scalars, std::size_t here) {
    if (!isPictograph(scalars[here]) || classOf(scalars[here - 1]) != U_GCB_ZWJ) {
        return false;
    }
    std::size_t place = here - 1;
    while (place > 0 && classOf(scalars[place - 1]) == U_GCB_EXTEND) {
        --place;
    }
    return place > 0 && isPictograph(scalars[place - 1]);
}

/// Flags are pairs: the second of a pair stays with the first.
bool completesFlag(const std::vector<char32_t>& scalars, std::size_t here) {
    std::size_t before = 0;
    while (before < here && classOf(scalars[here - 1 - before]) == U_GCB_REGIONAL_INDICATOR) {
        ++before;
    }
    return classOf(scalars[here]) == U_GCB_REGIONAL_INDICATOR && before % 2 == 1;
}

bool breaksBefore(const std::vector<char32_t>& scalars, std::size_t here) {
    const auto left = classOf(scalars[here - 1]);
    const auto right = classOf(scalars[here]);
    if (left == U_GCB_CR && right == U_GCB_LF) {
        return false;
    }
    if (isControl(left) || isControl(right)) {
        return true;
    }
    const bool staysTogether = staysOneSyllable(left, right) || right == U_GCB_EXTEND ||
                               right == U_GCB_ZWJ || right == U_GCB_SPACING_MARK ||
                               left == U_GCB_PREPEND || joinsPictographs(scalars, here) ||
                               completesFlag(scalars, here);
    return !staysTogether;
}

}  // namespace

std::vector<char32_t> scalarsOf(std::string_view bytes) {
    std::vector<char32_t> scalars;
    for (std::size_t i = 0; i < bytes.size();) {
        const auto first = static_cast<std::uint8_t>(bytes[i]);
        const Start start = startOf(first);
        constexpr std::array<std::uint8_t, 5> firstBits{0, 0x7F, 0x1F, 0x0F, 0x07};
        char32_t scalar = first & firstBits[start.length];
        std::size_t good = 1;
        for (; good < start.length && i + good < bytes.size(); ++good) {
            const auto next = static_cast<std::uint8_t>(bytes[i + good]);
            const std::uint8_t least = good == 1 ? start.least : 0x80;
            const std::uint8_t most = good == 1 ? start.most : 0xBF;
            if (next < least || next > most) {
                break;
            }
            scalar = (scalar << 6U) | (next & 0x3FU);
        }
        scalars.push_back(good == start.length ? scalar : replacement);
        i += good;
    }
    return scalars;
}

std::string utf8Of(const std::vector<char32_t>& scalars) {
    std::string bytes;
    const auto append = [&bytes](char32_t byte) { bytes += static_cast<char>(byte); };
    for (const char32_t scalar : scalars) {
        if (scalar < 0x80) {
            append(scalar);
        } else if (scalar < 0x800) {
            append(0xC0 | scalar >> 6U);
        } else if (scalar < 0x10000) {
            append(0xE0 | scalar >> 12U);
        } else {
            append(0xF0 | scalar >> 18U);
            append(0x80 | (scalar >> 12U & 0x3FU));
        }
        if (scalar >= 0x800) {
            append(0x80 | (scalar >> 6U & 0x3FU));
        }
        if (scalar >= 0x80) {
            append(0x80 | (scalar & 0x3FU));
        }
    }
    return bytes;
}

std::vector<std::vector<char32_t>> charactersOf(const std::vector<char32_t>& scalars) {
    std::vector<std::vector<char32_t>> characters;
    for (std::size_t i = 0; i < scalars.size(); ++i) {
        if (i == 0 || breaksBefore(scalars, i)) {
            characters.emplace_back();
        }
        characters.back().push_back(scalars[i]);
    }
    return characters;
}

bool isWhiteSpace(char32_t scalar) {
    // The whole of the property: it has not changed since Unicode 6.3 and is closed to additions
    // within these blocks.
    constexpr std::array<char32_t, 9> singles{0x20,   0x85,   0xA0,   0x1680, 0x2028,
                                              0x2029, 0x202F, 0x205F, 0x3000};
    return (scalar >= 0x09 && scalar <= 0x0D) || (scalar >= 0x2000 && scalar <= 0x200A) ||
           std::ranges::find(singles, scalar) != singles.end();
}

}  // namespace SnakeCore
