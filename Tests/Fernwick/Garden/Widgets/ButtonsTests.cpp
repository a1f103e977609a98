#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QSignalSpy>
#include <QTest>
#include <QTransform>
#include <memory>
#include <vector>

#include "Garden/Look/Fonts.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Widgets/GardenButton.hpp"
#include "Garden/Widgets/IconButton.hpp"
#include "Garden/Widgets/QuietButton.hpp"
#include "Support/Look.hpp"
#include "Support/Picture.hpp"

namespace {

// The colour of a pixel inside the button's fill, left of its text.
QColor fillOf(QWidget& button) {
    return picture(button).pixelColor(12, button.height() / 2);
}

std::vector<std::unique_ptr<QAbstractButton>> oneOfEach() {
    std::vector<std::unique_ptr<QAbstractButton>> buttons;
    buttons.push_back(std::make_unique<Garden::GardenButton>(QStringLiteral("Done")));
    buttons.push_back(std::make_unique<Garden::GardenButton>(QStringLiteral("Let's grow"), nullptr,
                                                             Garden::GardenButton::Style::arrow));
    buttons.push_back(std::make_unique<Garden::QuietButton>(QStringLiteral("Skip saving"),
                                                            Garden::sans(12, QFont::Normal)));
    buttons.push_back(
        std::make_unique<Garden::IconButton>(Garden::Icon::trophy, QStringLiteral("High scores")));
    return buttons;
}

}  // namespace

TEST(GardenButton, changesOnlyTheOpacityOfItsFill) {
    Garden::GardenButton button(QStringLiteral("Save score"));
    EXPECT_TRUE(alike(fillOf(button), Garden::mint));

    button.setDown(true);
    EXPECT_TRUE(alike(fillOf(button), onBlack(Garden::withOpacity(Garden::mint, 0.7))));

    button.setDown(false);
    EXPECT_TRUE(alike(fillOf(button), Garden::mint));
}

TEST(GardenButton, getsAWhiteVeilOf7PercentUnderThePointerUnlessPressedOrDisabled) {
    for (const auto style :
         {Garden::GardenButton::Style::capsule, Garden::GardenButton::Style::arrow}) {
        Garden::GardenButton button(QStringLiteral("Save score"), nullptr, style);
        button.setAttribute(Qt::WA_UnderMouse);
        const QColor veiled = Look::over(Garden::withOpacity(Qt::white, 0.07), Garden::mint);
        EXPECT_TRUE(alike(fillOf(button), veiled));
        // The same up to its edge.
        EXPECT_TRUE(alike(picture(button).pixelColor(button.width() / 2, 0), veiled));

        button.setDown(true);
        EXPECT_TRUE(alike(fillOf(button), onBlack(Garden::withOpacity(Garden::mint, 0.7))));

        button.setDown(false);
        button.setEnabled(false);
        EXPECT_TRUE(alike(fillOf(button), onBlack(Garden::withOpacity(Garden::mint, 0.3))));
    }
}

TEST(GardenButton, looksDisabledEvenWhilePressed) {
    Garden::GardenButton button(QStringLiteral("Save score"));
    button.setDown(true);
    button.setEnabled(false);

    EXPECT_TRUE(alike(fillOf(button), onBlack(Garden::withOpacity(Garden::mint, 0.3))));
}

TEST(GardenButton, looksDisabledInsideADisabledContainer) {
    QWidget container;
    auto* button = new Garden::GardenButton(QStringLiteral("Save score"), &container);

    container.setEnabled(false);

    EXPECT_TRUE(alike(fillOf(*button), onBlack(Garden::withOpacity(Garden::mint, 0.3))));
}

TEST(GardenButton, drawsItsTextInInkInEveryState) {
    Garden::GardenButton button(QStringLiteral("Save score"));
    const int enabled = countOf(picture(button, 2), Garden::ink);
    EXPECT_GT(enabled, 50);

    button.setDown(true);
    EXPECT_GE(countOf(picture(button, 2), Garden::ink), enabled);

    button.setEnabled(false);
    EXPECT_GE(countOf(picture(button, 2), Garden::ink), enabled);
}

TEST(GardenButton, growsWithItsText) {
    const QFontMetricsF metrics(Garden::sans(13, QFont::DemiBold));
    for (const QString& text : {QStringLiteral("OK"), QStringLiteral("A much longer text")}) {
        const Garden::GardenButton button(text);
        EXPECT_EQ(button.sizeHint(),
                  QSize(qCeil(metrics.horizontalAdvance(text)) + 60, qCeil(metrics.height()) + 26));
    }
}

TEST(GardenButton, hasRoundEnds) {
    Garden::GardenButton button(QStringLiteral("Done"));
    const QImage image = picture(button);

    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::black));
    EXPECT_EQ(image.pixelColor(image.width() - 1, image.height() - 1), QColor(Qt::black));
    EXPECT_GT(image.pixelColor(0, image.height() / 2).green(), 100);
}

TEST(ArrowButton, drawsItsTextAndAnArrowInInk) {
    Garden::GardenButton button(QStringLiteral("Let's grow"), nullptr,
                                Garden::GardenButton::Style::arrow);
    const QFontMetricsF metrics(button.font());
    const int textWidth = qCeil(metrics.horizontalAdvance(button.text()));
    EXPECT_EQ(button.sizeHint().height(), qCeil(metrics.height()) + 30);
    EXPECT_GT(button.sizeHint().width(), textWidth + 50);

    const QImage image = picture(button, 2);
    EXPECT_TRUE(alike(image.pixelColor(20, image.height() / 2), Garden::mint));
    const QRect rightOfText(2 * (25 + textWidth), 0, image.width() - 2 * (25 + textWidth),
                            image.height());
    EXPECT_GT(countOf(image.copy(rightOfText), Garden::ink), 20);
}

TEST(ArrowButton, mirrorsItsArrowInRightToLeftLayouts) {
    constexpr int padding = 25;
    constexpr int arrow = 13;
    Garden::GardenButton button(QStringLiteral("oooo"), nullptr,
                                Garden::GardenButton::Style::arrow);
    const QImage leftToRight = picture(button);
    button.setLayoutDirection(Qt::RightToLeft);
    const QImage rightToLeft = picture(button);

    const int height = button.height();
    const QImage trailing = leftToRight.copy(button.width() - padding - arrow, 0, arrow, height);
    EXPECT_EQ(rightToLeft.copy(padding, 0, arrow, height),
              trailing.transformed(QTransform::fromScale(-1, 1)));
    EXPECT_NE(rightToLeft, leftToRight);
}

TEST(ArrowButton, growsWithANewText) {
    Garden::GardenButton button({}, nullptr, Garden::GardenButton::Style::arrow);
    const int before = button.sizeHint().width();

    button.setText(QStringLiteral("Keep growing"));

    EXPECT_GT(button.sizeHint().width(), before + 40);
}

TEST(QuietButton, drawsOnlyItsTextInMuted) {
    Garden::QuietButton button(QStringLiteral("Skip saving"), Garden::sans(12, QFont::Normal));
    const QImage image = picture(button, 4);

    EXPECT_GT(countOf(image, Garden::muted), 50);
    EXPECT_EQ(image.pixelColor(2, 2), QColor(Qt::black));
}

TEST(IconButton, is26PointsSquareAndMuted) {
    Garden::IconButton button(Garden::Icon::pause, QStringLiteral("Pause or resume"));

    EXPECT_EQ(button.size(), QSize(26, 26));
    EXPECT_EQ(button.sizeHint(), QSize(26, 26));
    EXPECT_GT(countOf(picture(button, 2), Garden::muted), 20);
}

TEST(IconButton, hasItsHelpTextAsTooltipAndAccessibleName) {
    const Garden::IconButton button(Garden::Icon::trophy, QStringLiteral("High scores"));

    EXPECT_EQ(button.toolTip(), QStringLiteral("High scores"));
    EXPECT_EQ(button.accessibleName(), QStringLiteral("High scores"));
}

TEST(IconButton, isTranslucentWhileDisabled) {
    Garden::IconButton button(Garden::Icon::play, QStringLiteral("Pause or resume"));
    button.setEnabled(false);

    const QImage image = picture(button, 2);
    EXPECT_EQ(countOf(image, Garden::muted), 0);
    EXPECT_FALSE(inkOf(image).isEmpty());
}

TEST(IconButton, showsItsNewIcon) {
    Garden::IconButton button(Garden::Icon::play, QStringLiteral("Pause or resume"));
    const QImage play = picture(button, 2);

    button.setIcon(Garden::Icon::pause);

    EXPECT_NE(picture(button, 2), play);
}

TEST(EveryButton, takesFocusByTabAndNotByClick) {
    for (const auto& button : oneOfEach()) {
        EXPECT_EQ(button->focusPolicy(), Qt::TabFocus);
    }
}

TEST(EveryButton, isClickedOnceByReturnEnterAndSpaceEach) {
    for (const auto& button : oneOfEach()) {
        button->show();
        const QSignalSpy clicks(button.get(), &QAbstractButton::clicked);
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
            QTest::keyClick(button.get(), key);
        }
        EXPECT_EQ(clicks.count(), 3);
    }
}

TEST(EveryButton, ignoresAutoRepeatedReturn) {
    for (const auto& button : oneOfEach()) {
        button->show();
        const QSignalSpy clicks(button.get(), &QAbstractButton::clicked);
        QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, {}, true);
        QApplication::sendEvent(button.get(), &repeated);
        EXPECT_EQ(clicks.count(), 0);
    }
}

TEST(EveryButton, isClickedByTheMouseUnlessDisabled) {
    for (const auto& button : oneOfEach()) {
        button->show();
        const QSignalSpy clicks(button.get(), &QAbstractButton::clicked);
        QTest::mouseClick(button.get(), Qt::LeftButton);
        EXPECT_EQ(clicks.count(), 1);

        button->setEnabled(false);
        QTest::mouseClick(button.get(), Qt::LeftButton);
        QTest::keyClick(button.get(), Qt::Key_Return);
        EXPECT_EQ(clicks.count(), 1);
    }
}

TEST(EveryButton, hasAPointingHandCursorWhileEnabled) {
    for (const auto& button : oneOfEach()) {
        EXPECT_EQ(button->cursor().shape(), Qt::PointingHandCursor);
        button->setEnabled(false);
        EXPECT_EQ(button->cursor().shape(), Qt::ArrowCursor);
        button->setEnabled(true);
        EXPECT_EQ(button->cursor().shape(), Qt::PointingHandCursor);
    }
}

TEST(EveryButton, showsAFocusRingOnlyForKeyboardFocus) {
    for (const auto& button : oneOfEach()) {
        const QImage unfocused = picture(*button, 2);

        QFocusEvent byProgram(QEvent::FocusIn, Qt::OtherFocusReason);
        QApplication::sendEvent(button.get(), &byProgram);
        EXPECT_EQ(picture(*button, 2), unfocused);

        QFocusEvent byTab(QEvent::FocusIn, Qt::TabFocusReason);
        QApplication::sendEvent(button.get(), &byTab);
        EXPECT_NE(picture(*button, 2), unfocused);

        QFocusEvent focusOut(QEvent::FocusOut, Qt::TabFocusReason);
        QApplication::sendEvent(button.get(), &focusOut);
        EXPECT_EQ(picture(*button, 2), unfocused);
    }
}
