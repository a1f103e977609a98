#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainterPath>
#include <QRawFont>
#include <QResource>

#include "Garden/Look/Fonts.hpp"

namespace {

std::string faceOf(const QFont& font) {
    const QRawFont raw = QRawFont::fromFont(font);
    return (raw.familyName() + u'/' + raw.styleName() + u'/' + QString::number(raw.weight()))
        .toStdString();
}

// Compares the tables of the font that Qt draws with: a system font may have the same names.
void expectEmbedded(const char* file, const QFont& font) {
    const QByteArray data =
        QResource(QStringLiteral(":/fonts/") + QLatin1String(file)).uncompressedData();
    ASSERT_FALSE(data.isEmpty()) << file;
    const QRawFont embedded(data, font.pixelSize());
    const QRawFont drawn = QRawFont::fromFont(font);
    EXPECT_EQ(embedded.fontTable("name"), drawn.fontTable("name")) << file;
    EXPECT_EQ(embedded.fontTable("head"), drawn.fontTable("head")) << file;
}

}  // namespace

TEST(Fonts, haveTheRequestedFamilyAndWeight) {
    EXPECT_EQ(faceOf(Garden::sans(13, QFont::Normal)), "Inter/Regular/400");
    EXPECT_EQ(faceOf(Garden::sans(13, QFont::Medium)), "Inter/Medium/500");
    EXPECT_EQ(faceOf(Garden::sans(13, QFont::DemiBold)), "Inter/Semi Bold/600");
    EXPECT_EQ(faceOf(Garden::serif(27, QFont::ExtraLight)), "ElstobD/ExtraLight/200");
    EXPECT_EQ(faceOf(Garden::serif(35, QFont::Normal)), "ElstobD/18pt/400");
    EXPECT_EQ(faceOf(Garden::mono(33, QFont::Light)), "JetBrains Mono/Light/300");
    EXPECT_EQ(faceOf(Garden::mono(11, QFont::Normal)), "JetBrains Mono/Regular/400");
}

TEST(Fonts, comeFromTheEmbeddedFiles) {
    expectEmbedded("Inter-Regular.otf", Garden::sans(12, QFont::Normal));
    expectEmbedded("Inter-Medium.otf", Garden::sans(12, QFont::Medium));
    expectEmbedded("Inter-SemiBold.otf", Garden::sans(12, QFont::DemiBold));
    expectEmbedded("ElstobD-ExtraLight.otf", Garden::serif(27, QFont::ExtraLight));
    expectEmbedded("ElstobD-18pt.otf", Garden::serif(27, QFont::Normal));
    expectEmbedded("JetBrainsMono-Light.ttf", Garden::mono(33, QFont::Light));
    expectEmbedded("JetBrainsMono-Regular.ttf", Garden::mono(33, QFont::Normal));
}

TEST(Fonts, areAllAddedBeforeTheFirstIsUsed) {
    const QFont first = Garden::sans(13, QFont::Normal);
    int additions = 0;
    const auto counting = QObject::connect(qGuiApp, &QGuiApplication::fontDatabaseChanged,
                                           [&additions] { ++additions; });

    for (const QFont& next : {Garden::sans(13, QFont::Medium), Garden::serif(27, QFont::ExtraLight),
                              Garden::mono(11, QFont::Normal)}) {
        static_cast<void>(QFontMetricsF(next).height());
    }

    EXPECT_EQ(additions, 0);
    QObject::disconnect(counting);
}

TEST(Fonts, kernTheFullStopOfHeadlines) {
    const QFontMetricsF metrics(Garden::serif(34, QFont::Normal));

    // The arm of the "r" hangs over the full stop.
    EXPECT_LT(metrics.horizontalAdvance(QStringLiteral("r.")),
              metrics.horizontalAdvance(u'r') + metrics.horizontalAdvance(u'.') - 2);
}

// Labels measure descenders in the serif font only.
TEST(Fonts, drawDescendersBelowTheirDescentOnlyInSerif) {
    const auto depthBelowDescent = [](const QFont& font) {
        QPainterPath letters;
        letters.addText(0, 0, font, QStringLiteral("gjpqy"));
        return letters.boundingRect().bottom() - QFontMetricsF(font).descent();
    };
    for (int size = 8; size <= 40; ++size) {
        for (const QFont::Weight weight : {QFont::Normal, QFont::Medium, QFont::DemiBold}) {
            EXPECT_LE(depthBelowDescent(Garden::sans(size, weight)), 0) << size;
        }
        EXPECT_LE(depthBelowDescent(Garden::mono(size, QFont::Light)), 0) << size;
        EXPECT_LE(depthBelowDescent(Garden::mono(size, QFont::Normal)), 0) << size;
    }
    EXPECT_GT(depthBelowDescent(Garden::serif(34, QFont::Normal)), 0);
}

TEST(Fonts, haveTheSizeInPixelsAndNoHinting) {
    for (const QFont& font : {Garden::sans(9, QFont::Medium), Garden::serif(9, QFont::ExtraLight),
                              Garden::mono(9, QFont::Normal)}) {
        EXPECT_EQ(font.pixelSize(), 9);
        EXPECT_EQ(font.hintingPreference(), QFont::PreferNoHinting);
    }
}

TEST(Fonts, haveTheRequestedLetterSpacing) {
    const QString word = QStringLiteral("GROW");
    const double plain = QFontMetricsF(Garden::sans(9, QFont::Medium)).horizontalAdvance(word);
    const double tracked = QFontMetricsF(Garden::sans(9, QFont::Medium, 2)).horizontalAdvance(word);

    EXPECT_NEAR(tracked - plain, 2.0 * static_cast<double>(word.size()), 0.5);
}

TEST(Fonts, haveNoLetterSpacingInCursiveScripts) {
    const QFont spaced = Garden::sans(14, QFont::Medium, 2);
    for (const char* text : {"النقاط", "अंक", "10 نقاط"}) {
        EXPECT_EQ(Garden::fittedTo(QString::fromUtf8(text), spaced).letterSpacing(), 0) << text;
    }
    for (const char* text : {"FERNWICK", "РАХУНОК", "スコア", ""}) {
        EXPECT_EQ(Garden::fittedTo(QString::fromUtf8(text), spaced).letterSpacing(), 2) << text;
    }
}

TEST(Fonts, haveAMinimumSizeInScriptsWithComplexGlyphs) {
    const QFont small = Garden::sans(8, QFont::Medium);
    for (const char* text : {"النقاط", "अंक", "スコア", "得分", "점수"}) {
        EXPECT_EQ(Garden::fittedTo(QString::fromUtf8(text), small).pixelSize(), 11) << text;
    }
    EXPECT_EQ(Garden::fittedTo(QStringLiteral("SCORE"), small).pixelSize(), 8);
    const QFont large = Garden::sans(27, QFont::Normal);
    EXPECT_EQ(Garden::fittedTo(QStringLiteral("得分"), large).pixelSize(), 27);
}
