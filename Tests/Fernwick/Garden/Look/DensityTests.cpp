#include <gtest/gtest.h>

#include "Garden/Look/Density.hpp"
#include "Garden/Look/Fonts.hpp"

namespace {

constexpr Garden::ContentSize contents{200, 400, 100, 300};

Garden::Density densityFor(const QSize& available, double textScale = 1) {
    return Garden::densityFor(available, contents, textScale);
}

}  // namespace

TEST(Density, isFullWhereTheContentsFit) {
    EXPECT_EQ(densityFor({500, 400}), Garden::Density());
    EXPECT_EQ(densityFor({500, 1000}), Garden::Density());
}

TEST(Density, takesAwayAirFirst) {
    const Garden::Density density = densityFor({500, 380});

    EXPECT_DOUBLE_EQ(density.air, 0.8);
    EXPECT_EQ(density.scale, 1);
}

TEST(Density, leavesSomeAirAndScalesOnlyBelowTheLeastHeight) {
    EXPECT_EQ(densityFor({500, 300}), (Garden::Density{Garden::leastAir, 1}));
    EXPECT_EQ(densityFor({500, 240}), (Garden::Density{Garden::leastAir, 0.8}));
}

TEST(Density, scalesContentsThatAreTooWide) {
    EXPECT_EQ(densityFor({160, 500}), (Garden::Density{1, 0.8}));
}

TEST(Density, enlargesContentsByTheTextScale) {
    EXPECT_EQ(densityFor({500, 600}, 1.5), (Garden::Density{1, 1.5}));
    EXPECT_TRUE(densityFor({500, 600}, 1.5).isFull());
}

TEST(Density, takesAwayAirBeforeItEnlargesLess) {
    EXPECT_EQ(densityFor({500, 570}, 1.5), (Garden::Density{0.8, 1.5}));
    EXPECT_EQ(densityFor({500, 420}, 1.5), (Garden::Density{Garden::leastAir, 1.4}));
}

TEST(Density, enlargesContentsOnlyToTheWidth) {
    EXPECT_EQ(densityFor({250, 600}, 1.5), (Garden::Density{1, 1.25}));
    EXPECT_EQ(Garden::scaleForWidth(250, contents, 1.5), 1.25);
    EXPECT_EQ(Garden::scaleForWidth(100, contents, 1.5), 1);
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
