#include <fontconfig/fontconfig.h>
#include <gtest/gtest.h>

#include <memory>

#include "Desktop/SystemFonts.hpp"
#include "Support/EnvironmentVariable.hpp"
#include "Support/FileContent.hpp"
#include "Support/TemporaryFolder.hpp"

namespace {

using Pattern = std::unique_ptr<FcPattern, decltype(&FcPatternDestroy)>;

/// With a fontconfig file of the user that asks for vertical sub-pixel rendering.
class SystemFonts : public ::testing::Test {
protected:
    SystemFonts() {
        writeFile(file_,
                  "<fontconfig><include>/etc/fonts/fonts.conf</include><match target='pattern'>"
                  "<edit name='rgba'><const>vrgb</const></edit></match></fontconfig>");
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

private:
    TemporaryFolder folder_;
    std::filesystem::path file_ = folder_.path() / "fonts.conf";
    EnvironmentVariable variable_{"FONTCONFIG_FILE", file_.c_str()};
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
