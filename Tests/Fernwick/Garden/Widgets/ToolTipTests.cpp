#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QTest>

#include "Garden/Look/Fonts.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Widgets/IconButton.hpp"
#include "Garden/Widgets/RollingDigits.hpp"
#include "Garden/Widgets/ToolTip.hpp"
#include "Garden/Widgets/TrackedLabel.hpp"
#include "Support/Look.hpp"
#include "Support/Picture.hpp"

namespace {

/// A window with one button, whose tooltip is asked for as Qt does when the pointer rests on it.
class ToolTips : public ::testing::Test {
protected:
    ToolTips() {
        window.resize(400, 300);
        content.resize(window.size());
        button.move(187, 137);
        window.show();
    }

    Garden::ToolTip* pointAt(QWidget& widget) {
        QHelpEvent event(QEvent::ToolTip, widget.rect().center(),
                         widget.mapToGlobal(widget.rect().center()));
        QCoreApplication::sendEvent(&widget, &event);
        return tip();
    }

    [[nodiscard]] Garden::ToolTip* tip() const {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return window.findChild<Garden::ToolTip*>();
    }

    /// Puts a text at `place`, which is then in the way of tooltips.
    void putTextAt(const QRect& place) {
        auto* label = new Garden::TrackedLabel(
            QStringLiteral("000"), Garden::mono(11, QFont::Normal), Garden::mint, &window);
        label->setGeometry(place);
        label->show();
    }

    void putDigitsAt(const QRect& place) {
        auto* digits = new Garden::RollingDigits(Qt::AlignLeft, &window);
        digits->setValue(0);
        digits->setGeometry(place);
        digits->show();
    }

    template <typename Event>
    void expectGoneAfter(QObject& receiver, Event&& event) {
        ASSERT_NE(pointAt(button), nullptr);
        QCoreApplication::sendEvent(&receiver, &event);
        EXPECT_EQ(tip(), nullptr);
    }

    QWidget window;
    QWidget& content = *new QWidget(&window);
    Garden::IconButton& button =
        *new Garden::IconButton(Garden::Icon::trophy, QStringLiteral("High scores"), &window);
};

}  // namespace

TEST_F(ToolTips, areAboveTheControl) {
    const QRect place = pointAt(button)->geometry();

    EXPECT_EQ(Look::bottomOf(place), button.y() - 6);
    EXPECT_NEAR(place.center().x(), button.geometry().center().x(), 1);
}

TEST_F(ToolTips, areBelowTheControlIfThereIsAText) {
    putTextAt({100, 110, 200, 20});

    EXPECT_EQ(pointAt(button)->y(), Look::bottomOf(button.geometry()) + 6);
}

TEST_F(ToolTips, coverATextIfThereAreTextsOnBothSides) {
    putTextAt({100, 110, 200, 20});
    putTextAt({100, 170, 200, 20});

    EXPECT_EQ(Look::bottomOf(pointAt(button)->geometry()), button.y() - 6);
}

TEST_F(ToolTips, areBesideTheControlAndItsNeighboursIfThereAreDigitsOnBothSides) {
    putDigitsAt({100, 110, 200, 20});
    putDigitsAt({100, 170, 200, 20});
    Garden::IconButton neighbour(Garden::Icon::pause, QStringLiteral("Pause"), &window);
    button.move(240, 137);
    neighbour.move(210, 137);
    neighbour.show();

    const QRect place = pointAt(button)->geometry();

    EXPECT_EQ(Look::rightOf(place), neighbour.x() - 6);
    EXPECT_NEAR(place.center().y(), button.geometry().center().y(), 1);
}

TEST_F(ToolTips, stayInsideTheWindow) {
    for (const QPoint& corner : {QPoint(2, 2), QPoint(372, 2), QPoint(2, 272), QPoint(372, 272)}) {
        button.move(corner);
        QCoreApplication::processEvents();
        const Garden::ToolTip* shown = pointAt(button);
        EXPECT_TRUE(window.rect().adjusted(6, 6, -6, -6).contains(shown->geometry()));
        EXPECT_FALSE(shown->geometry().intersects(button.geometry()));
        delete shown;
    }
}

TEST_F(ToolTips, areASoilPanelWithAMintEdgeAndRoundCorners) {
    Garden::ToolTip& shown = *pointAt(button);
    for (const int scale : {1, 2}) {
        SCOPED_TRACE(scale);
        const QImage image = picture(shown, scale);
        const QColor edge = Look::over(Garden::withOpacity(Garden::mint, 0.16), Garden::soil);
        EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::black));
        Look::expectColour(image.pixelColor(image.width() / 2, 0), edge, 1);
        Look::expectColour(image.pixelColor(image.width() / 2, scale), Garden::soil, 1);
        EXPECT_GT(countOf(image, Look::over(Garden::primaryText, Garden::soil)), 20);
    }

    constexpr int scale = 8;
    const QImage image = picture(shown, scale);
    int diagonal = 0;
    while (image.pixelColor(diagonal, diagonal) == QColor(Qt::black)) {
        ++diagonal;
    }
    EXPECT_NEAR(diagonal / double{scale}, 6 * (1 - std::sqrt(0.5)), 0.2);
}

TEST_F(ToolTips, disappearWhenThePointerLeavesTheControl) {
    expectGoneAfter(button, QEvent(QEvent::Leave));
}

TEST_F(ToolTips, disappearWithAKeyAClickAndTheFocusOfTheWindow) {
    expectGoneAfter(window, QKeyEvent(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier));
    expectGoneAfter(button, QMouseEvent(QEvent::MouseButtonPress, {5, 5}, QPointF(5, 5),
                                        Qt::LeftButton, Qt::LeftButton, Qt::NoModifier));
    expectGoneAfter(window, QEvent(QEvent::WindowDeactivate));
}

TEST_F(ToolTips, disappearWhenTheControlIsHiddenOrTheWindowResized) {
    ASSERT_NE(pointAt(button), nullptr);
    window.resize(500, 300);
    EXPECT_EQ(tip(), nullptr);

    ASSERT_NE(pointAt(button), nullptr);
    button.hide();
    EXPECT_EQ(tip(), nullptr);
}

TEST_F(ToolTips, areShownOneAtATime) {
    Garden::IconButton other(Garden::Icon::pause, QStringLiteral("Pause"), &window);
    other.show();
    ASSERT_NE(pointAt(button), nullptr);

    EXPECT_EQ(pointAt(other)->accessibleName(), QStringLiteral("Pause"));
    EXPECT_EQ(window.findChildren<Garden::ToolTip*>().size(), 1);
}
