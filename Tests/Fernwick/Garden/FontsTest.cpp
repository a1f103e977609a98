#include "Garden/Fonts.hpp"

#include <gtest/gtest.h>

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QRawFont>

namespace {

std::string cutOf(const QFont& font) {
    const QRawFont raw = QRawFont::fromFont(font);
    return (raw.familyName() + u'/' + raw.styleName() + u'/' + QString::number(raw.weight()))
        .toStdString();
}

}  // namespace

TEST(Fonts, drawTheCutThatIsAskedFor) {
    EXPECT_EQ(cutOf(Garden::sans(13, QFont::Normal)), "Inter/Regular/400");
    EXPECT_EQ(cutOf(Garden::sans(13, QFont::Medium)), "Inter/Medium/500");
    EXPECT_EQ(cutOf(Garden::sans(13, QFont::DemiBold)), "Inter/Semi Bold/600");
    EXPECT_EQ(cutOf(Garden::serif(27, QFont::Light)), "ElstobD/Light/300");
    EXPECT_EQ(cutOf(Garden::serif(35, QFont::Normal)), "ElstobD/Regular/400");
    EXPECT_EQ(cutOf(Garden::mono(33, QFont::Light)), "JetBrains Mono/Light/300");
    EXPECT_EQ(cutOf(Garden::mono(11, QFont::Normal)), "JetBrains Mono/Regular/400");
}
