#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QFontMetricsF>
#include <QSignalSpy>
#include <QTest>

#include "Garden/Look/Fonts.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Widgets/ChoiceGroup.hpp"
#include "Support/Look.hpp"
#include "Support/Picture.hpp"

namespace {

class ChoiceGroup : public testing::Test {
protected:
    ChoiceGroup() { group.setCurrent(1); }

    QAbstractButton* choice(int index) { return group.findChildren<QAbstractButton*>().at(index); }

    int chosenIndex(const QSignalSpy& chosen) { return chosen.last().first().toInt(); }

    Garden::ChoiceGroup group{
        {QStringLiteral("Gentle"), QStringLiteral("Classic"), QStringLiteral("Swift")},
        QStringLiteral("Speed")};
};

}  // namespace

TEST_F(ChoiceGroup, padsEachChoiceAndTheGroup) {
    const QFontMetricsF metrics(Garden::sans(12, QFont::Medium));
    int width = 0;
    for (int index = 0; index < 3; ++index) {
        width += qCeil(metrics.horizontalAdvance(choice(index)->text())) + 2 * 17;
    }

    EXPECT_EQ(group.sizeHint(), QSize(width + 2 * 4, qCeil(metrics.height()) + 2 * 9 + 2 * 4));
}

TEST_F(ChoiceGroup, checksOnlyTheCurrentChoice) {
    EXPECT_EQ(group.current(), 1);
    EXPECT_FALSE(choice(0)->isChecked());
    EXPECT_TRUE(choice(1)->isChecked());
    EXPECT_FALSE(choice(2)->isChecked());

    group.setCurrent(2);

    EXPECT_EQ(group.current(), 2);
    EXPECT_FALSE(choice(1)->isChecked());
    EXPECT_TRUE(choice(2)->isChecked());
}

TEST_F(ChoiceGroup, drawsTheCurrentTextInMintAndTheOthersInMuted) {
    const QImage image = picture(group, 4);
    const auto pictureOf = [&](int index) {
        const QRect area = choice(index)->geometry();
        return image.copy(QRect(area.topLeft() * 4, area.size() * 4));
    };

    EXPECT_GT(countOf(pictureOf(1), Garden::mint), 50);
    EXPECT_EQ(countOf(pictureOf(1), Garden::muted), 0);
    for (const int other : {0, 2}) {
        EXPECT_GT(countOf(pictureOf(other), Garden::muted), 50);
        EXPECT_EQ(countOf(pictureOf(other), Garden::mint), 0);
    }
}

TEST_F(ChoiceGroup, drawsAMintCapsuleOnAFaintWhiteBackground) {
    const QImage image = picture(group);
    const QColor background = onBlack(Garden::withOpacity(Qt::white, 0.035));
    EXPECT_TRUE(alike(image.pixelColor(2, group.height() / 2), background));
    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::black));

    QImage expected(1, 1, QImage::Format_ARGB32_Premultiplied);
    expected.fill(background);
    QPainter(&expected).fillRect(expected.rect(), Garden::withOpacity(Garden::mint, 0.16));
    EXPECT_TRUE(
        alike(image.pixelColor(choice(1)->x() + 8, group.height() / 2), expected.pixelColor(0, 0)));
}

TEST_F(ChoiceGroup, emitsChosenOnAClickWithoutChangingTheCurrentChoice) {
    group.show();
    const QSignalSpy chosen(&group, &Garden::ChoiceGroup::chosen);

    QTest::mouseClick(choice(2), Qt::LeftButton);

    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosenIndex(chosen), 2);
    EXPECT_EQ(group.current(), 1);
    EXPECT_TRUE(choice(1)->isChecked());
    EXPECT_FALSE(choice(2)->isChecked());
}

TEST_F(ChoiceGroup, emitsChosenOnAClickOnTheCurrentChoiceAndKeepsItChecked) {
    group.show();
    const QSignalSpy chosen(&group, &Garden::ChoiceGroup::chosen);

    QTest::mouseClick(choice(1), Qt::LeftButton);

    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosenIndex(chosen), 1);
    EXPECT_TRUE(choice(1)->isChecked());
}

TEST_F(ChoiceGroup, emitsNothingWhenTheCurrentChoiceIsSet) {
    const QSignalSpy chosen(&group, &Garden::ChoiceGroup::chosen);

    group.setCurrent(0);

    EXPECT_EQ(chosen.count(), 0);
}

TEST_F(ChoiceGroup, movesFocusWithTheArrowKeysAndStopsAtTheEnds) {
    group.show();
    group.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&group));
    const QSignalSpy chosen(&group, &Garden::ChoiceGroup::chosen);
    choice(1)->setFocus(Qt::TabFocusReason);

    QTest::keyClick(choice(1), Qt::Key_Right);
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosenIndex(chosen), 2);
    EXPECT_TRUE(choice(2)->hasFocus());

    QTest::keyClick(choice(2), Qt::Key_Right);
    EXPECT_EQ(chosen.count(), 1);
    EXPECT_TRUE(choice(2)->hasFocus());

    QTest::keyClick(choice(2), Qt::Key_Left);
    EXPECT_EQ(chosenIndex(chosen), 1);
    EXPECT_TRUE(choice(1)->hasFocus());
}

TEST_F(ChoiceGroup, isClickedByReturn) {
    group.show();
    const QSignalSpy chosen(&group, &Garden::ChoiceGroup::chosen);

    QTest::keyClick(choice(0), Qt::Key_Return);

    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosenIndex(chosen), 0);
}

TEST_F(ChoiceGroup, ignoresClicksAndReturnWhileItsChoicesAreDisabled) {
    group.show();
    const QSignalSpy chosen(&group, &Garden::ChoiceGroup::chosen);
    group.setChoicesEnabled(false);

    QTest::mouseClick(choice(2), Qt::LeftButton);
    QTest::keyClick(choice(2), Qt::Key_Return);
    EXPECT_EQ(chosen.count(), 0);

    group.setChoicesEnabled(true);
    QTest::mouseClick(choice(2), Qt::LeftButton);
    EXPECT_EQ(chosen.count(), 1);
}

TEST_F(ChoiceGroup, dimsEachChoiceTo55PercentWhileDisabled) {
    group.setCurrent(1);
    const int letters = countOf(picture(group, 4), Garden::mint);

    group.setChoicesEnabled(false);

    const QImage disabled = picture(group, 4);
    EXPECT_GT(letters, 100);
    EXPECT_EQ(countOf(disabled, Garden::mint), 0);
    const QColor plate = Look::over(Garden::withOpacity(Garden::mint, 0.16 * 0.55),
                                    Look::over(Garden::withOpacity(Qt::white, 0.035), Qt::black));
    const QRect current = choice(1)->geometry();
    Look::expectColour(
        Look::colourAt(disabled, current.center() - QPoint(current.width() / 2 - 8, 0)), plate, 1);
}

TEST_F(ChoiceGroup, hasEveryChoiceInTheTabOrder) {
    for (int index = 0; index < 3; ++index) {
        EXPECT_EQ(choice(index)->focusPolicy(), Qt::TabFocus);
    }
}
