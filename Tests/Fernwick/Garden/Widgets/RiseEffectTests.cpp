#include <gtest/gtest.h>

#include <QWidget>

#include "Garden/Widgets/RiseEffect.hpp"
#include "Support/Picture.hpp"

namespace {

constexpr int side = 40;

class RiseEffect : public testing::Test {
protected:
    RiseEffect() {
        container.resize(side, 2 * side);
        container.setStyleSheet(QStringLiteral("background: black"));
        plate.setGeometry(0, 0, side, side);
        plate.setStyleSheet(QStringLiteral("background: white"));
        plate.setGraphicsEffect(effect);
    }

    QColor seenAt(int y) { return picture(container).pixelColor(side / 2, y); }

    QWidget container;
    QWidget plate{&container};
    Garden::RiseEffect* effect = new Garden::RiseEffect;
};

}  // namespace

TEST_F(RiseEffect, isInvisibleAtPresence0) {
    EXPECT_EQ(seenAt(side / 2), QColor(Qt::black));
}

TEST_F(RiseEffect, drawsTheWidgetUnchangedAtPresence1) {
    effect->setPresence(1);

    EXPECT_EQ(seenAt(0), QColor(Qt::white));
    EXPECT_EQ(seenAt(side - 1), QColor(Qt::white));
    EXPECT_EQ(seenAt(side), QColor(Qt::black));
}

TEST_F(RiseEffect, drawsTheWidgetTranslucentAndLowerInBetween) {
    effect->setPresence(0.5);
    const int lower = static_cast<int>(Garden::RiseEffect::rise / 2);

    EXPECT_EQ(seenAt(lower - 1), QColor(Qt::black));
    EXPECT_NEAR(seenAt(lower).red(), 128, 1);
    EXPECT_NEAR(seenAt(side + lower - 1).red(), 128, 1);
    EXPECT_EQ(seenAt(side + lower), QColor(Qt::black));
}

TEST_F(RiseEffect, doesNotMoveTheWidgetItself) {
    effect->setPresence(0.5);

    EXPECT_EQ(plate.geometry(), QRect(0, 0, side, side));
}
