#include <gtest/gtest.h>

#include "Garden/Look/Density.hpp"
#include "Garden/Look/Fonts.hpp"

namespace {

constexpr Garden::ContentHeight contents{400, 100, 300};

}  // namespace

TEST(Density, isFullWhereTheContentsFit) {
    EXPECT_EQ(Garden::densityFor(400, contents), Garden::Density());
    EXPECT_EQ(Garden::densityFor(1000, contents), Garden::Density());
}

TEST(Density, takesAwayAirFirst) {
    const Garden::Density density = Garden::densityFor(380, contents);

    EXPECT_DOUBLE_EQ(density.air, 0.8);
    EXPECT_EQ(density.scale, 1);
}

TEST(Density, leavesSomeAirAndScalesOnlyBelowTheLeastHeight) {
    EXPECT_EQ(Garden::densityFor(300, contents), (Garden::Density{Garden::leastAir, 1}));
    EXPECT_EQ(Garden::densityFor(240, contents), (Garden::Density{Garden::leastAir, 0.8}));
}

TEST(Density, scalesFontsWithTheirLetterSpacing) {
    const QFont font = Garden::scaled(Garden::sans(20, QFont::Medium, 2), 0.8);

    EXPECT_EQ(font.pixelSize(), 16);
    EXPECT_NEAR(font.letterSpacing(), 1.6, 0.01);
}

TEST(Density, keepsSmallTextLegible) {
    EXPECT_EQ(Garden::scaled(Garden::sans(9, QFont::Medium), 0.5).pixelSize(), 8);
    EXPECT_EQ(Garden::scaled(Garden::sans(8, QFont::Medium), 0.5).pixelSize(), 8);
}
