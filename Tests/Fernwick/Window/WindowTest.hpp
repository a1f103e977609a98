#pragma once

#include <QAbstractAnimation>
#include <QGuiApplication>
#include <QScreen>
#include <QTest>
#include <algorithm>
#include <array>
#include <functional>

#include "Fernwick/Session/SessionTest.hpp"
#include "Session/KeyMonitor.hpp"
#include "Support/Screen.hpp"
#include "Window/GameWindow.hpp"

inline constexpr std::array allPhases{Session::Phase::fresh,   Session::Phase::running,
                                      Session::Phase::paused,  Session::Phase::awaitingName,
                                      Session::Phase::skipped, Session::Phase::saved};

/// Whether a run is running or paused in `phase`.
constexpr bool inRun(Session::Phase phase) {
    return phase == Session::Phase::running || phase == Session::Phase::paused;
}

/// Whether no run has begun yet in `phase`, or the last one is saved or skipped.
constexpr bool betweenRuns(Session::Phase phase) {
    return !inRun(phase) && phase != Session::Phase::awaitingName;
}

/// The main window over the session of `SessionTest`.
class WindowTest : public SessionTest {
protected:
    explicit WindowTest(const SavedScores& saved = {}) : SessionTest(saved) {
        window.show();
        processEvents();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        waitForFullScreen(true);
    }

    /// Under a window manager the change takes a while.
    void waitForFullScreen(bool fullScreen) {
        const bool managed = QGuiApplication::platformName() != QStringLiteral("offscreen");
        EXPECT_TRUE(QTest::qWaitFor([this, fullScreen, managed] {
            const bool fillsScreen = window.size() == window.screen()->size();
            return window.isFullScreen() == fullScreen && (!managed || fillsScreen == fullScreen);
        }));
        processEvents();
    }

    void leaveFullScreen() {
        window.showNormal();
        waitForFullScreen(false);
    }

    /// Twice: layout requests post further events.
    static void processEvents() {
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }

    [[nodiscard]] bool animationsFinished() const {
        const auto animations = window.findChildren<QAbstractAnimation*>();
        return std::ranges::none_of(animations, [](const QAbstractAnimation* animation) {
            return animation->state() == QAbstractAnimation::Running;
        });
    }

    void waitForAnimations() {
        EXPECT_TRUE(QTest::qWaitFor([this] { return animationsFinished(); }));
        processEvents();
    }

    [[nodiscard]] QImage grab() { return window.grab().toImage(); }

    /// The first widget of type `T` in the window.
    template <typename T>
    [[nodiscard]] T& child() const {
        return *window.findChild<T*>();
    }

    /// The rectangle of `widget` in the coordinates of `root`.
    [[nodiscard]] static QRect rectIn(const QWidget& root, const QWidget& widget) {
        return {widget.mapTo(&root, QPoint()), widget.size()};
    }

    /// The rectangle of `widget` in the coordinates of the window.
    [[nodiscard]] QRect rectOf(const QWidget& widget) const { return rectIn(window, widget); }

    template <typename T>
    [[nodiscard]] QRect rectOf() const {
        return rectOf(child<T>());
    }

    [[nodiscard]] bool shows(const QString& text) const { return Screen::shows(window, text); }

    [[nodiscard]] QAbstractButton* button(const QString& name) const {
        return Screen::button(window, name);
    }

    [[nodiscard]] bool canPress(const QString& name) const {
        const QAbstractButton* found = button(name);
        return found != nullptr && found->isEnabled();
    }

    void press(const QString& name) {
        ASSERT_NE(button(name), nullptr) << name.toStdString();
        button(name)->click();
        processEvents();
    }

    /// Stores a best for the pace "Classic" and has the session load it.
    void setBest(std::int64_t best) {
        preferences.store("best-Classic", QCborValue(qint64{best}));
        session.choosePace(Pace::classic);
        processEvents();
    }

    void openScores() {
        session.openScores();
        processEvents();
    }

    void startRun() {
        session.start();
        processEvents();
    }

    void startAndPauseRun() {
        startRun();
        session.pause();
        processEvents();
    }

    void playToNameEntry() {
        startAndEndRun();
        processEvents();
    }

    void playAndSaveAs(const QString& name) {
        startAndEndRun();
        saveScoreAs(name);
        processEvents();
    }

    void playAndSkip() {
        startAndEndRun();
        session.skipSaving();
        processEvents();
    }

    /// Brings the session into `phase`. `fresh` cannot be entered again, and a run that waits for a
    /// name must be saved or skipped before the next one.
    void enterPhase(Session::Phase phase) {
        switch (phase) {
            case Session::Phase::running:
                startRun();
                break;
            case Session::Phase::paused:
                startAndPauseRun();
                break;
            case Session::Phase::awaitingName:
                playToNameEntry();
                break;
            case Session::Phase::saved:
                playAndSaveAs("Ada");
                break;
            case Session::Phase::skipped:
                playAndSkip();
                break;
            case Session::Phase::fresh:
                break;
        }
        ASSERT_EQ(session.phase(), phase);
    }

    void inEveryPhase(const std::function<void(Session::Phase)>& check) {
        for (const Session::Phase phase : allPhases) {
            SCOPED_TRACE(phase);
            enterPhase(phase);
            check(phase);
        }
    }

    KeyMonitor keyMonitor{session};
    GameWindow window{session};
};
