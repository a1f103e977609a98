#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QMenuBar>
#include <QTest>
#include <algorithm>

#include "Fernwick/Window/Geometry/SceneWindow.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Widgets/TrackedLabel.hpp"
#include "Screens/Scores/NameField.hpp"
#include "Support/Screen.hpp"
#include "Support/Wakeups.hpp"

namespace {

Scene sceneNamed(const char* name) {
    const std::vector<Scene> scenes = galleryScenes();
    return *std::ranges::find(scenes, QLatin1String(name), &Scene::name);
}

QScreen* screenOf(const QSize& size) {
    const QList<QScreen*> screens = QGuiApplication::screens();
    return *std::ranges::find(screens, size, &QScreen::size);
}

/// The band's part of the picture of the window with the menu bar shown in full screen.
QImage bandUnderMenus(SceneWindow& scene) {
    auto& bar = *scene.window().findChild<QMenuBar*>();
    bar.show();
    SceneWindow::processEvents();
    return scene.window().grab({0, 0, scene.window().width(), 46}).toImage();
}

}  // namespace

TEST(SizeChanges, keepARunGoing) {
    SceneWindow scene(QStringLiteral("en"), sceneNamed("running"), Pace::classic);
    const SnakeCore::Game game = scene.session().game();

    for (QScreen* screen : QGuiApplication::screens()) {
        scene.cover(screen, Qt::WindowFullScreen);
        scene.cover(screen, Qt::WindowMaximized);
        EXPECT_TRUE(scene.session().running());
    }
    EXPECT_EQ(scene.session().game().score(), game.score());
}

TEST(SizeChanges, keepTheNameAndTheFocusOfItsField) {
    SceneWindow scene(QStringLiteral("en"), sceneNamed("ended"), Pace::classic);
    auto& field = *scene.window().findChild<NameField*>();
    field.setText(QStringLiteral("Ada"));
    field.setCursorPosition(1);

    for (QScreen* screen : QGuiApplication::screens()) {
        scene.cover(screen, Qt::WindowFullScreen);
        scene.cover(screen, Qt::WindowMaximized);
        EXPECT_EQ(scene.window().focusWidget(), &field);
        EXPECT_EQ(field.text(), QStringLiteral("Ada"));
        EXPECT_EQ(field.cursorPosition(), 1);
    }
}

TEST(SizeChanges, bringBackTheFullSize) {
    for (const char* name : {"paused", "ended", "sheet-classic-full"}) {
        SceneWindow scene(QStringLiteral("en"), sceneNamed(name), Pace::classic);
        QScreen* const large = screenOf({1280, 800});
        scene.cover(large, Qt::WindowFullScreen);
        const QImage before = scene.window().grab().toImage();

        scene.cover(screenOf({640, 360}), Qt::WindowFullScreen);
        EXPECT_FALSE(scene.window().grab().toImage() == before) << name;
        scene.cover(large, Qt::WindowFullScreen);

        EXPECT_TRUE(scene.window().grab().toImage() == before) << name;
    }
}

TEST(SizeChanges, wakeTheEventLoopNoMoreOnceTheLayoutIsDone) {
    for (const char* name : {"fresh", "ended", "saved"}) {
        SceneWindow scene(QStringLiteral("en"), sceneNamed(name), Pace::classic);
        scene.cover(screenOf({640, 360}), Qt::WindowFullScreen);

        // Each level of nested layouts takes a turn of the event loop.
        QTest::qWait(100);

        constexpr int fewWakeups = 4;
        EXPECT_LE(wakeups(100), fewWakeups) << name;
    }
}

TEST(FullScreenMenus, areLegibleOverASmallScreen) {
    SceneWindow scene(QStringLiteral("en"), sceneNamed("fresh"), Pace::classic);
    scene.cover(screenOf({640, 360}), Qt::WindowFullScreen);
    const auto* wordmark =
        Screen::find<Garden::TrackedLabel>(scene.window(), QStringLiteral("FERNWICK"));
    ASSERT_LT(wordmark->mapTo(&scene.window(), QPoint()).y(), 46);

    const QImage band = bandUnderMenus(scene);

    // Beside the menus there is nothing of the wordmark or the board below.
    for (int x = 190; x < band.width(); ++x) {
        ASSERT_EQ(band.pixelColor(x, 25).rgb(), Garden::night.rgb()) << x;
    }
}

TEST(FullScreenMenus, leaveALargeScreenAsItIs) {
    SceneWindow scene(QStringLiteral("en"), sceneNamed("fresh"), Pace::classic);
    scene.cover(screenOf({1280, 800}), Qt::WindowFullScreen);
    const QRect beside(200, 0, 1000, 46);
    const QImage before = scene.window().grab(beside).toImage();

    const QImage band = bandUnderMenus(scene);

    EXPECT_EQ(band.copy(beside), before);
}
