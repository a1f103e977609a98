#include <fontconfig/fontconfig.h>
#include <gtest/gtest.h>

#include <memory>

#include "Desktop/SystemFonts.hpp"
#include "Support/EnvironmentVariable.hpp"
#include "Support/FileContent.hpp"
#include "Support/TemporaryFolder.hpp"

namespace {

using Pattern = std::unique_ptr<FcPattern, decltype(&FcPatternDestroy)>;

QByteArray ruleForSubPixelRendering(const char* order) {
    return "<fontconfig><match target='pattern'><edit name='rgba'><const>" + QByteArray(order) +
           "</const></edit></match></fontconfig>";
}

/// With a fontconfig file of the user that asks for vertical sub-pixel rendering.
class SystemFonts : public ::testing::Test {
protected:
    SystemFonts() {
        writeFile(folder_.path() / "fontconfig/fonts.conf", ruleForSubPixelRendering("vrgb"));
    }
    ~SystemFonts() override { FcFini(); }

    [[nodiscard]] static int count() { return FcConfigGetFonts(nullptr, FcSetSystem)->nfont; }

    [[nodiscard]] static bool hasFamily(const char* family) {
        const Pattern pattern(FcPatternCreate(), FcPatternDestroy);
        FcPatternAddString(pattern.get(), FC_FAMILY, reinterpret_cast<const FcChar8*>(family));
        const std::unique_ptr<FcFontSet, decltype(&FcFontSetDestroy)> found(
            FcFontList(nullptr, pattern.get(), nullptr), FcFontSetDestroy);
        return found->nfont > 0;
    }

    [[nodiscard]] static int subPixelRendering() {
        const Pattern pattern(FcPatternCreate(), FcPatternDestroy);
        FcConfigSubstitute(nullptr, pattern.get(), FcMatchPattern);
        int rgba = FC_RGBA_UNKNOWN;
        FcPatternGetInteger(pattern.get(), FC_RGBA, 0, &rgba);
        return rgba;
    }

    TemporaryFolder folder_;

private:
    EnvironmentVariable configuration_{"XDG_CONFIG_HOME", folder_.path().c_str()};
};

}  // namespace

TEST_F(SystemFonts, areNotFoundWhileLeftOut) {
    Desktop::leaveOutSystemFonts();
    EXPECT_EQ(count(), 0);

    Desktop::takeInSystemFonts({});
    EXPECT_GT(count(), 0);
}

TEST_F(SystemFonts, followTheRulesOfTheUser) {
    Desktop::leaveOutSystemFonts();
    EXPECT_EQ(subPixelRendering(), FC_RGBA_VRGB);

    Desktop::takeInSystemFonts({});
    EXPECT_EQ(subPixelRendering(), FC_RGBA_VRGB);
}

TEST_F(SystemFonts, followTheRulesOfAFileNamedByTheEnvironment) {
    const std::filesystem::path file = folder_.path() / "another.conf";
    writeFile(file, ruleForSubPixelRendering("bgr"));
    const EnvironmentVariable variable("FONTCONFIG_FILE", file.c_str());

    Desktop::leaveOutSystemFonts();

    EXPECT_EQ(subPixelRendering(), FC_RGBA_BGR);
}

TEST_F(SystemFonts, areAllFoundAgain) {
    const int all = count();

    Desktop::leaveOutSystemFonts();
    Desktop::takeInSystemFonts({});

    EXPECT_EQ(count(), all);
}

TEST_F(SystemFonts, areFoundWithoutTheFamiliesToLeaveOut) {
    ASSERT_TRUE(hasFamily("Noto Sans"));
    constexpr const char* leftOut[] = {"Noto Sans Arabic", "Noto Sans"};

    Desktop::takeInSystemFonts(leftOut);

    EXPECT_FALSE(hasFamily("Noto Sans"));
    EXPECT_FALSE(hasFamily("Noto Sans Arabic"));
    EXPECT_TRUE(hasFamily("Noto Sans Devanagari"));
}
