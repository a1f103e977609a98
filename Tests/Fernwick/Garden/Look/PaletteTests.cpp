#include <gtest/gtest.h>

#include "Garden/Look/Palette.hpp"

namespace {

void expectComponents(const QColor& colour, float red, float green, float blue, float opacity) {
    constexpr float sixteenBits = 1.0F / 0xffff;
    EXPECT_EQ(colour.spec(), QColor::Rgb);
    EXPECT_NEAR(colour.redF(), red, sixteenBits);
    EXPECT_NEAR(colour.greenF(), green, sixteenBits);
    EXPECT_NEAR(colour.blueF(), blue, sixteenBits);
    EXPECT_NEAR(colour.alphaF(), opacity, sixteenBits);
}

}  // namespace

TEST(Palette, storesComponentsWith16Bits) {
    expectComponents(Garden::mint, 0.65F, 0.94F, 0.64F, 1);
    expectComponents(Garden::muted, 0.48F, 0.59F, 0.53F, 1);
    expectComponents(Garden::night, 0.035F, 0.065F, 0.053F, 1);
    expectComponents(Garden::soil, 0.055F, 0.095F, 0.076F, 1);
    expectComponents(Garden::ink, 0.06F, 0.15F, 0.09F, 1);
    expectComponents(Garden::primaryText, 1, 1, 1, 0.85F);
}

TEST(Palette, changesOnlyTheOpacity) {
    expectComponents(Garden::withOpacity(Garden::mint, 0.16), 0.65F, 0.94F, 0.64F, 0.16F);
    expectComponents(Garden::withOpacity(Qt::white, 0.55), 1, 1, 1, 0.55F);
}
