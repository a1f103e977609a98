#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QTest>

#include "Garden/Look/Fonts.hpp"
#include "Garden/Look/Motion.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Widgets/RollingDigits.hpp"
#include "Support/Picture.hpp"
#include "Support/StillStyle.hpp"
#include "Support/Wakeups.hpp"

namespace {

constexpr int animationEnd = 2 * Garden::digitRollDuration;

QImage still(qint64 value, Qt::Alignment alignment = Qt::AlignLeft) {
    Garden::RollingDigits digits(alignment);
    digits.setValue(value);
    return picture(digits);
}

class VisibleRollingDigits : public testing::Test {
protected:
    VisibleRollingDigits() {
        digits.setValue(240);
        digits.show();
        QTest::qWait(50);
    }

    Garden::RollingDigits digits{Qt::AlignLeft};
};

}  // namespace

TEST(RollingDigits, showsAtLeastThreeDigits) {
    const double cell =
        QFontMetricsF(Garden::mono(33, QFont::Light)).horizontalAdvance(QLatin1Char('0'));
    const auto width = [](qint64 value) {
        Garden::RollingDigits digits(Qt::AlignLeft);
        digits.setValue(value);
        return digits.sizeHint().width();
    };

    EXPECT_EQ(width(999), width(0));
    EXPECT_NEAR(width(1234) - width(0), cell, 1);
}

TEST(RollingDigits, haveNoSpaceBesideThem) {
    for (const Qt::Alignment side : {Qt::AlignLeft, Qt::AlignRight}) {
        constexpr int scale = 4;
        Garden::RollingDigits digits(side);
        digits.setValue(0);
        const QImage image = picture(digits, scale);

        EXPECT_LE(inkOf(image).left(), 1.5 * scale);
        EXPECT_GE(inkOf(image).right(), image.width() - 1 - 1.5 * scale);
    }
}

TEST(RollingDigits, cutNothingOffAnyDigit) {
    for (int digit = 0; digit <= 9; ++digit) {
        constexpr int scale = 4;
        Garden::RollingDigits digits(Qt::AlignLeft);
        digits.setValue(111 * digit);
        const QImage image = picture(digits, scale);

        EXPECT_GT(inkOf(image).left(), 0) << digit;
        EXPECT_LT(inkOf(image).right(), image.width() - 1) << digit;
    }
}

TEST(RollingDigits, padsWithZerosInMint) {
    Garden::RollingDigits digits(Qt::AlignLeft);
    digits.setValue(7);
    const QImage image = picture(digits);
    EXPECT_GT(countOf(picture(digits, 4), Garden::mint), 100);

    const int third = image.width() / 3;
    const QImage zero = still(0);
    const QRect firstTwo(0, 0, 2 * third, image.height());
    EXPECT_EQ(image.copy(firstTwo), zero.copy(firstTwo));
    EXPECT_NE(image, zero);
}

TEST(RollingDigits, staysAlignedWhenWiderThanNeeded) {
    Garden::RollingDigits left(Qt::AlignLeft);
    Garden::RollingDigits right(Qt::AlignRight);
    for (Garden::RollingDigits* digits : {&left, &right}) {
        digits->setValue(88);
        digits->resize(300, digits->sizeHint().height());
    }

    EXPECT_LT(inkOf(picture(left)).left(), 6);
    EXPECT_GT(inkOf(picture(right)).right(), 300 - 6);
}

TEST(RollingDigits, mirrorsTheAlignmentInRightToLeftLayouts) {
    Garden::RollingDigits digits(Qt::AlignLeft);
    digits.setLayoutDirection(Qt::RightToLeft);
    digits.setValue(888);
    digits.resize(2 * digits.sizeHint().width(), digits.sizeHint().height());

    EXPECT_GE(inkOf(picture(digits)).left(), digits.width() / 2);
}

TEST(RollingDigits, showsTheFirstValueWithoutAnimation) {
    Garden::RollingDigits digits(Qt::AlignLeft);
    digits.show();

    digits.setValue(240);

    EXPECT_EQ(picture(digits), still(240));
}

TEST_F(VisibleRollingDigits, rollsOnlyTheDigitThatChanges) {
    digits.setValue(250);
    QTest::qWait(Garden::digitRollDuration / 3);
    const QImage rolling = picture(digits);

    EXPECT_NE(rolling, still(240));
    EXPECT_NE(rolling, still(250));
    const int third = rolling.width() / 3;
    for (const int unchanged : {0, 2}) {
        const QRect cell(unchanged * third + 2, 0, third - 4, rolling.height());
        EXPECT_EQ(rolling.copy(cell), still(250).copy(cell)) << unchanged;
    }
}

TEST_F(VisibleRollingDigits, fadesRollingDigitsBeforeTheyReachAnEdge) {
    digits.setValue(350);
    for (int frame = 0; frame < 15; ++frame) {
        QTest::qWait(Garden::digitRollDuration / 20);
        const QImage rolling = picture(digits, 4);
        for (const int edge : {0, rolling.height() - 1}) {
            for (int x = 0; x < rolling.width(); ++x) {
                EXPECT_LT(rolling.pixelColor(x, edge).green(), 16) << frame;
            }
        }
    }
}

TEST_F(VisibleRollingDigits, endsTheAnimationOnTheNewValue) {
    digits.setValue(250);
    QTest::qWait(animationEnd);

    EXPECT_EQ(picture(digits), still(250));
}

TEST_F(VisibleRollingDigits, endsTheAnimationOnTheLastOfSeveralValues) {
    for (const qint64 value : {250, 260, 270}) {
        digits.setValue(value);
        QTest::qWait(20);
    }
    QTest::qWait(animationEnd);

    EXPECT_EQ(digits.value(), 270);
    EXPECT_EQ(picture(digits), still(270));
}

TEST_F(VisibleRollingDigits, wakesTheEventLoopOnlyDuringTheAnimation) {
    EXPECT_LE(wakeups(200), idleWakeups);

    digits.setValue(250);
    EXPECT_GT(wakeups(200), idleWakeups);

    QTest::qWait(animationEnd);
    EXPECT_LE(wakeups(200), idleWakeups);
}

TEST_F(VisibleRollingDigits, changesInPlaceWithReducedMotion) {
    const StillStyle style;

    digits.setValue(250);

    EXPECT_EQ(picture(digits), still(250));
    EXPECT_LE(wakeups(200), idleWakeups);
}

TEST_F(VisibleRollingDigits, doesNotAnimateWhenTheValueIsUnchanged) {
    digits.setValue(240);

    EXPECT_LE(wakeups(200), idleWakeups);
}
