#include <gtest/gtest.h>

#include <set>
#include <string>
#include <string_view>

#include "SnakeCore/UUID.hpp"

namespace SnakeCore {
namespace {

constexpr std::string_view canonical = "0E9A3D52-6C1B-4E8F-9A57-2F4D1B6C8E30";

TEST(UUID, isWrittenInUpperCase) {
    EXPECT_EQ(UUID::parse(canonical).value().string(), canonical);
}

TEST(UUID, isParsedInAnyCase) {
    EXPECT_EQ(UUID::parse("0e9a3d52-6c1b-4e8f-9a57-2f4d1b6c8e30"), UUID::parse(canonical));
    EXPECT_EQ(UUID::parse("0e9A3d52-6C1b-4E8f-9a57-2F4d1b6C8e30"), UUID::parse(canonical));
}

TEST(UUID, isParsedInNoOtherForm) {
    for (const std::string_view text :
         {"", "0", "{0E9A3D52-6C1B-4E8F-9A57-2F4D1B6C8E30}", "0E9A3D526C1B4E8F9A572F4D1B6C8E30",
          "0E9A3D52-6C1B-4E8F-9A57-2F4D1B6C8E3", "0E9A3D52-6C1B-4E8F-9A57-2F4D1B6C8E300",
          "0E9A3D52-6C1B-4E8F-9A57-2F4D1B6C8E3G", "0E9A3D52 6C1B-4E8F-9A57-2F4D1B6C8E30",
          "0E9A3D526-C1B-4E8F-9A57-2F4D1B6C8E30", " 0E9A3D52-6C1B-4E8F-9A57-2F4D1B6C8E3",
          "+E9A3D52-6C1B-4E8F-9A57-2F4D1B6C8E30", "0xE9A3D5-6C1B-4E8F-9A57-2F4D1B6C8E30"}) {
        EXPECT_EQ(UUID::parse(text), std::nullopt) << text;
    }
}

TEST(UUID, isRejectedWithAWrongCharacterAtAnyPosition) {
    for (std::size_t i = 0; i < canonical.size(); ++i) {
        for (const char wrong : {'g', ' ', '\0', '\xff', canonical[i] == '-' ? '0' : '-'}) {
            std::string text(canonical);
            text[i] = wrong;
            EXPECT_EQ(UUID::parse(text), std::nullopt) << text;
        }
    }
}

TEST(UUID, isRejectedIfFollowedByANul) {
    EXPECT_EQ(UUID::parse(std::string(canonical) + '\0'), std::nullopt);
    EXPECT_EQ(UUID::parse(std::string(canonical) + '\0' + "x"), std::nullopt);
}

TEST(UUID, isOrderedLikeItsText) {
    const UUID digit = UUID::parse("9E9A3D52-6C1B-4E8F-9A57-2F4D1B6C8E30").value();
    const UUID letter = UUID::parse("ae9a3d52-6c1b-4e8f-9a57-2f4d1b6c8e30").value();
    const UUID later = UUID::parse("AE9A3D52-6C1B-4E8F-9A57-2F4D1B6C8E31").value();

    EXPECT_LT(digit, letter);
    EXPECT_LT(letter, later);
}

TEST(UUID, isUniqueAndOfVersion4WhenRandom) {
    std::set<UUID> all;
    for (int i = 0; i < 1000; ++i) {
        const UUID id = UUID::random();
        const std::string text = id.string();
        EXPECT_EQ(text[14], '4') << text;
        EXPECT_NE(std::string_view("89AB").find(text[19]), std::string_view::npos) << text;
        EXPECT_EQ(UUID::parse(text), id);
        all.insert(id);
    }

    EXPECT_EQ(all.size(), 1000U);
}

}  // namespace
}  // namespace SnakeCore
