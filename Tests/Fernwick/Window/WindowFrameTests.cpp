#include "Fernwick/Window/WindowTest.hpp"
#include "Screens/Main/ContentView.hpp"
#include "Window/TitleBand.hpp"
#include "Window/WindowChrome.hpp"
#include "Window/WindowFrame.hpp"

namespace {

constexpr QMargins shadow(36, 32, 36, 40);

class Frame : public WindowTest {
protected:
    Frame() { leaveFullScreen(); }

    void support(bool supported) {
        child<WindowFrame>().setSupported(supported);
        processEvents();
    }

    /// Where the main screen lies on the desktop.
    [[nodiscard]] QRect visiblePlace() const {
        const auto& content = child<ContentView>();
        return {content.mapToGlobal(QPoint()), content.size()};
    }

    /// The window as a compositor gets it.
    [[nodiscard]] QImage picture() {
        QImage picture(window.size(), QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::transparent);
        window.render(&picture, {}, {}, QWidget::DrawChildren);
        return picture;
    }

    /// The opacity at a point of the visible part, from 0 to 255.
    [[nodiscard]] int opacityAt(const QPoint& point) {
        return qAlpha(picture().pixel(visible().topLeft() + point));
    }

    [[nodiscard]] QRect visible() const { return child<WindowFrame>().visibleArea(); }
};

}  // namespace

TEST_F(Frame, hasAMarginAroundTheUnchangedVisiblePart) {
    const QRect before = window.geometry();

    support(true);
    EXPECT_EQ(window.geometry(), before.marginsAdded(shadow));
    EXPECT_EQ(visiblePlace(), before);
    EXPECT_EQ(rectOf<TitleBand>().topLeft(), visible().topLeft());
    EXPECT_EQ(rectOf<TitleBand>().width(), before.width());

    support(false);
    EXPECT_EQ(window.geometry(), before);
    EXPECT_EQ(visiblePlace(), before);
}

TEST_F(Frame, countsTheMinimumSizeWithoutItsMarginAsFarAsTheScreenHasRoom) {
    support(true);

    EXPECT_EQ(window.minimumSize(),
              QSize(820, 760).grownBy(shadow).boundedTo(window.screen()->availableSize()));
}

TEST_F(Frame, hasNoMarginInFullScreen) {
    const QRect before = window.geometry();
    support(true);

    window.showFullScreen();
    processEvents();
    EXPECT_EQ(rectOf<ContentView>(), window.rect());
    EXPECT_EQ(visiblePlace(), window.screen()->geometry());
    EXPECT_TRUE(child<WindowFrame>().isHidden());

    leaveFullScreen();
    EXPECT_TRUE(QTest::qWaitFor([&] { return visiblePlace() == before; }))
        << ::testing::PrintToString(visiblePlace());
}

TEST_F(Frame, hasNoMarginWhenMaximised) {
    support(true);

    window.showMaximized();
    processEvents();

    EXPECT_EQ(rectOf<ContentView>(), window.rect());
    EXPECT_EQ(opacityAt({0, 0}), 255);
}

TEST_F(Frame, restoresTheVisibleSizeIfTheMarginAppearsInFullScreen) {
    const QRect before = window.geometry();
    window.showFullScreen();
    processEvents();

    support(true);
    leaveFullScreen();

    EXPECT_TRUE(QTest::qWaitFor([&] { return visiblePlace() == before; }))
        << ::testing::PrintToString(visiblePlace());
}

TEST_F(Frame, restoresTheVisibleSizeIfTheMarginVanishesInFullScreen) {
    const QRect before = window.geometry();
    support(true);
    window.showFullScreen();
    processEvents();

    support(false);
    leaveFullScreen();

    EXPECT_TRUE(QTest::qWaitFor([&] { return window.geometry() == before; }))
        << ::testing::PrintToString(window.geometry());
}

TEST_F(Frame, isSquareAndOpaqueWhereTheDesktopDoesNotSupportAFrame) {
    support(false);

    EXPECT_EQ(visible(), window.rect());
    EXPECT_EQ(opacityAt({0, 0}), 255);
    EXPECT_EQ(opacityAt({visible().width() - 1, visible().height() - 1}), 255);
}

TEST_F(Frame, hasAShadowThatFadesOutWithinTheMargin) {
    support(true);

    const QImage all = picture();
    const int middle = all.height() / 2;
    int last = 255;
    for (int x = visible().left() - 1; x >= 0; --x) {
        const QRgb pixel = all.pixel(x, middle);
        EXPECT_EQ(pixel & 0xFFFFFFU, 0U) << x;
        EXPECT_LE(qAlpha(pixel), last) << x;
        last = qAlpha(pixel);
    }
    EXPECT_GT(qAlpha(all.pixel(visible().left() - 1, middle)), 40);
    EXPECT_LE(last, 1);
    EXPECT_LE(qAlpha(all.pixel(0, 0)), 1);
    // It lies below the window rather than above it.
    EXPECT_GT(qAlpha(all.pixel(all.width() / 2, visible().bottom() + 5)),
              qAlpha(all.pixel(all.width() / 2, visible().top() - 5)));
}

TEST_F(Frame, hasTheSameShadowAllAlongAnEdgeAndInTheCornersOfTheWindow) {
    support(true);

    const QImage all = picture();
    const int above = visible().top() - 3;
    const int expected = qAlpha(all.pixel(all.width() / 2, above));
    for (int x = visible().left() + 60; x < visible().right() - 60; ++x) {
        EXPECT_EQ(qAlpha(all.pixel(x, above)), expected) << x;
    }
    // Where a corner crosses the diagonal, and on the edges beside it.
    EXPECT_EQ(opacityAt({5, 5}), 255);
    EXPECT_EQ(opacityAt({20, 0}), 255);
    EXPECT_EQ(opacityAt({0, 20}), 255);
    // There is no step where the rounded corner leaves the rectangle of the visible part.
    const QPoint corner = visible().topLeft();
    EXPECT_NEAR(qAlpha(all.pixel(corner)), qAlpha(all.pixel(corner - QPoint(1, 1))), 8);
    EXPECT_NEAR(qAlpha(all.pixel(visible().bottomRight())),
                qAlpha(all.pixel(visible().bottomRight() + QPoint(1, 1))), 8);
}

TEST_F(Frame, roundsTheCornersOfWhateverIsShown) {
    support(true);

    inEveryPhase([this](Session::Phase) { EXPECT_LT(opacityAt({0, 0}), 128); });
    openScores();
    waitForAnimations();
    EXPECT_LT(opacityAt({0, 0}), 128);
    EXPECT_LT(opacityAt({visible().width() - 1, visible().height() - 1}), 128);
}

TEST_F(Frame, hasAFineEdge) {
    support(true);

    const QImage all = picture();
    const QPoint edge(visible().left(), visible().center().y());
    EXPECT_GT(qGreen(all.pixel(edge)), qGreen(all.pixel(edge + QPoint(1, 0))) + 15);
    // The backdrop is dithered.
    EXPECT_NEAR(qGreen(all.pixel(edge + QPoint(1, 0))), qGreen(all.pixel(edge + QPoint(2, 0))), 2);
}

TEST_F(Frame, canBeDraggedAtTheEdgesAndAFewPointsOutside) {
    support(true);

    const auto edges = [this](int x) {
        return child<WindowChrome>().edgesAt({x, window.height() / 2});
    };
    EXPECT_EQ(edges(visible().left() - 9), Qt::Edges());
    EXPECT_EQ(edges(visible().left() - 8), Qt::LeftEdge);
    EXPECT_EQ(edges(visible().left() + 5), Qt::LeftEdge);
    EXPECT_EQ(edges(visible().left() + 6), Qt::Edges());
    EXPECT_EQ(edges(visible().right() - 5), Qt::RightEdge);
    EXPECT_EQ(edges(visible().right() + 8), Qt::RightEdge);
    EXPECT_EQ(edges(visible().right() + 9), Qt::Edges());
}

TEST_F(Frame, isMaximisedByADoubleClickOnTheBandButNotOnTheShadow) {
    support(true);
    const int middle = window.width() / 2;

    QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {}, {middle, 10});
    processEvents();
    EXPECT_FALSE(window.isMaximized());

    QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {},
                       {middle, visible().top() + TitleBand::height - 1});
    EXPECT_TRUE(QTest::qWaitFor([this] { return window.isMaximized(); }));
}
