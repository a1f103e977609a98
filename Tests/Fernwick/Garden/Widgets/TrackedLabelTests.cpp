#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>

#include "Garden/Look/Fonts.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Widgets/TrackedLabel.hpp"
#include "Support/Picture.hpp"

namespace {

const QString word = QStringLiteral("FERNWICK");
constexpr double tracking = 6;

QFont trackedFont() {
    return Garden::sans(14, QFont::DemiBold, tracking);
}

}  // namespace

TEST(TrackedLabel, excludesTheLetterSpacingAfterTheLastLetterFromItsWidth) {
    const Garden::TrackedLabel label(word, trackedFont(), Garden::mint);

    const double withTrailing = QFontMetricsF(trackedFont()).horizontalAdvance(word);
    EXPECT_EQ(label.sizeHint().width(), qCeil(withTrailing - tracking));
}

TEST(TrackedLabel, paintsFromEdgeToEdge) {
    Garden::TrackedLabel label(word, trackedFont(), Garden::mint);

    const QRect ink = inkOf(picture(label));
    constexpr int bearing = 2;
    EXPECT_LE(ink.left(), bearing);
    EXPECT_GE(ink.right(), label.width() - 1 - bearing);
    EXPECT_GT(ink.top(), 0);
    EXPECT_LT(ink.bottom(), label.height() - 1);
}

TEST(TrackedLabel, paintsInItsColour) {
    Garden::TrackedLabel label(QStringLiteral("Find your flow."), Garden::serif(35, QFont::Normal),
                               Garden::withOpacity(Qt::white, 0.55));

    EXPECT_GT(countOf(picture(label, 2), Garden::withOpacity(Qt::white, 0.55)), 100);
}

TEST(TrackedLabel, hasItsTextAsItsAccessibleName) {
    Garden::TrackedLabel label(word, trackedFont(), Garden::mint);
    EXPECT_EQ(label.accessibleName(), word);

    label.setText(QStringLiteral("GROW"));

    EXPECT_EQ(label.text(), QStringLiteral("GROW"));
    EXPECT_EQ(label.accessibleName(), QStringLiteral("GROW"));
}

TEST(TrackedLabel, isNarrowerWithAShorterText) {
    Garden::TrackedLabel label(word, trackedFont(), Garden::mint);
    const int before = label.sizeHint().width();

    label.setText(QStringLiteral("FERN"));

    EXPECT_LT(label.sizeHint().width(), before);
}

TEST(TrackedLabel, hasHeightButNoWidthWithoutText) {
    const Garden::TrackedLabel label({}, trackedFont(), Garden::mint);

    EXPECT_EQ(label.sizeHint().width(), 0);
    EXPECT_GT(label.sizeHint().height(), 0);
}

TEST(TrackedLabel, hasItsSizeHintAsItsMinimumSizeHint) {
    const Garden::TrackedLabel label(word, trackedFont(), Garden::mint);

    EXPECT_EQ(label.minimumSizeHint(), label.sizeHint());
}

TEST(TrackedLabel, elidesTextThatDoesNotFit) {
    Garden::TrackedLabel label(word, trackedFont(), Garden::mint);

    label.resize(label.sizeHint().width() / 2, label.sizeHint().height());

    const QRect ink = inkOf(picture(label));
    EXPECT_GT(ink.width(), label.width() / 2);
    EXPECT_LT(ink.right(), label.width());
}

TEST(TrackedLabel, doesNotClipDescenders) {
    const QString descenders = QStringLiteral("gjpqy");
    for (const QFont& font :
         {Garden::serif(27, QFont::ExtraLight), Garden::serif(30, QFont::Normal),
          Garden::serif(34, QFont::Normal), Garden::serif(35, QFont::Normal),
          Garden::sans(14, QFont::Normal), Garden::mono(13, QFont::Normal)}) {
        Garden::TrackedLabel label(descenders, font, Qt::white);
        QImage unclipped(400, 400, QImage::Format_ARGB32_Premultiplied);
        unclipped.setDevicePixelRatio(2);
        unclipped.fill(Qt::black);
        QPainter painter(&unclipped);
        painter.setPen(Qt::white);
        painter.setFont(font);
        painter.drawText(20, 100, descenders);
        painter.end();

        EXPECT_NEAR(inkOf(picture(label, 2)).height(), inkOf(unclipped).height(), 1)
            << font.family().toStdString() << font.pixelSize();
    }
}

TEST(TrackedLabel, paintsFromEdgeToEdgeInRightToLeftLayouts) {
    Garden::TrackedLabel label(word, trackedFont(), Garden::mint);
    const QImage leftToRight = picture(label);
    label.setLayoutDirection(Qt::RightToLeft);

    EXPECT_EQ(picture(label), leftToRight);
}

TEST(TrackedLabel, startsAtTheRightInRightToLeftLayouts) {
    Garden::TrackedLabel label(word, trackedFont(), Garden::mint);
    label.setLayoutDirection(Qt::RightToLeft);
    label.resize(2 * label.sizeHint().width(), label.sizeHint().height());

    const QRect ink = inkOf(picture(label));
    EXPECT_GT(ink.left(), label.width() / 3);
    EXPECT_GE(ink.right(), label.width() - 3);
}

TEST(TrackedLabel, usesItsOwnLayoutDirectionNotTheApplications) {
    const QString keys = QStringLiteral("← 1 →");
    Garden::TrackedLabel label(keys, trackedFont(), Garden::mint);
    const QImage leftToRight = picture(label);
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    label.setLayoutDirection(Qt::LeftToRight);
    const QImage inRightToLeftApplication = picture(label);
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);

    EXPECT_EQ(inRightToLeftApplication, leftToRight);
}

TEST(TrackedLabel, doesNotClipTallOrDeepGlyphsOfAnyScript) {
    for (const char* text : {"إِيقَاعُكَ", "ढ़ेंर्टीं", "ひと息ついて、", "Ọ̧́Ǎ̈", "ที่นี่ญู"}) {
        for (const QFont& font :
             {Garden::serif(35, QFont::Normal), Garden::sans(13, QFont::Normal)}) {
            Garden::TrackedLabel label(QString::fromUtf8(text), font, Garden::mint);
            const QRect tight = inkOf(picture(label));
            constexpr int margin = 40;
            label.resize(label.width(), label.height() + 2 * margin);

            EXPECT_EQ(inkOf(picture(label)).height(), tight.height()) << text;
        }
    }
}

TEST(TrackedLabel, hasTheSameHeightForTextsInTheSameScript) {
    const auto heightOf = [](const char* text) {
        return Garden::TrackedLabel(QString::fromUtf8(text), Garden::sans(9, QFont::Medium, 2),
                                    Garden::mint)
            .sizeHint()
            .height();
    };

    EXPECT_EQ(heightOf("النقاط"), heightOf("أفضل نتيجة لك"));
    EXPECT_EQ(heightOf("РАХУНОК"), heightOf("ОСОБИСТИЙ РЕКОРД"));
    EXPECT_EQ(heightOf("अंक"), heightOf("आपका सर्वश्रेष्ठ"));
    EXPECT_EQ(heightOf("スコア"), heightOf("自己ベスト"));
    EXPECT_EQ(heightOf("점수"), heightOf("개인 최고 기록"));
}

TEST(TrackedLabel, adaptsItsFontToTheScriptOfANewText) {
    Garden::TrackedLabel label(word, trackedFont(), Garden::mint);

    label.setText(QStringLiteral("نموّ"));
    EXPECT_EQ(label.font().letterSpacing(), 0);

    label.setText(word);
    EXPECT_EQ(label.font().letterSpacing(), tracking);
}

TEST(TrackedLabel, wrapsIntoEvenLinesThatFit) {
    Garden::TrackedLabel label(QStringLiteral("Gather the fruit. Grow a little longer."),
                               Garden::sans(13, QFont::Normal), Garden::mint);
    const QSize oneLine = label.sizeHint();

    label.wrapAt(oneLine.width() - 1);

    EXPECT_LT(label.sizeHint().width(), 0.7 * oneLine.width());
    EXPECT_GT(label.sizeHint().height(), 2 * oneLine.height());
    EXPECT_LT(label.sizeHint().height(), 3 * oneLine.height());
}

TEST(TrackedLabel, doesNotWrapATextThatFits) {
    Garden::TrackedLabel label(word, trackedFont(), Garden::mint);
    const QSize oneLine = label.sizeHint();

    label.wrapAt(oneLine.width());

    EXPECT_EQ(label.sizeHint(), oneLine);
}

TEST(TrackedLabel, paintsAllLinesOfAWrappedText) {
    Garden::TrackedLabel label(QStringLiteral("GROW GROW GROW"), trackedFont(), Garden::mint);
    label.wrapAt(label.sizeHint().width() / 2);

    const QRect ink = inkOf(picture(label));
    EXPECT_GT(ink.height(), label.height() / 2);
    EXPECT_LT(ink.bottom(), label.height());
}
