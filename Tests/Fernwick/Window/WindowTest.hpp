#pragma once

#include <QAbstractAnimation>
#include <QGuiApplication>
#include <QScreen>
#include <QTest>
#include <algorithm>
#include <array>

#include "Fernwick/Session/SessionTest.hpp"
#include "Session/KeyMonitor.hpp"
#include "Support/Screen.hpp"
#include "Window/GameWindow.hpp"

/// Every state that a game can be in.
inline constexpr std::array everyState{Session::Phase::fresh,   Session::Phase::running,
                                       Session::Phase::paused,  Session::Phase::awaitingName,
                                       Session::Phase::skipped, Session::Phase::saved};

/// The whole window around a session whose time passes only when a test lets it.
class WindowTest : public SessionTest {
protected:
    explicit WindowTest(const SavedScores& saved = {}) : SessionTest(saved) {
        window.show();
        settle();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        waitForFullScreen(true);
    }

    /// On a real screen the desktop takes its time over it.
    void waitForFullScreen(bool fullScreen) {
        const bool hasDesktop = QGuiApplication::platformName() != QStringLiteral("offscreen");
        EXPECT_TRUE(QTest::qWaitFor([this, fullScreen, hasDesktop] {
            const bool fills = window.size() == window.screen()->size();
            return window.isFullScreen() == fullScreen && (!hasDesktop || fills == fullScreen);
        }));
        settle();
    }

    void leaveFullScreen() {
        window.showNormal();
        waitForFullScreen(false);
    }

    /// Lets the window follow the session and lay out anew what that changed.
    static void settle() {
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }

    template <typename T>
    [[nodiscard]] T& the() const {
        return *window.findChild<T*>();
    }

    /// Where `widget` stands, in points of `root`.
    [[nodiscard]] static QRect placeIn(const QWidget& root, const QWidget& widget) {
        return {widget.mapTo(&root, QPoint()), widget.size()};
    }

    /// Where `widget` stands, in points of the window.
    [[nodiscard]] QRect placeOf(const QWidget& widget) const { return placeIn(window, widget); }

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
        settle();
    }

    /// Gives the current pace a personal best.
    void setBest(std::int64_t best) {
        preferences.store("best-Classic", QCborValue(qint64{best}));
        session.choosePace(Pace::classic);
        settle();
    }

    void startRun() {
        session.start();
        settle();
    }

    void pauseRun() {
        startRun();
        session.pause();
        settle();
    }

    void endRunAwaitingName() {
        startAndEndRun();
        settle();
    }

    void saveRunAs(const QString& name) {
        startAndEndRun();
        saveScoreAs(name);
        settle();
    }

    void skipRun() {
        startAndEndRun();
        session.skipSaving();
        settle();
    }

    [[nodiscard]] bool isStill() const {
        const auto animations = window.findChildren<QAbstractAnimation*>();
        return std::none_of(animations.begin(), animations.end(), [](const auto* animation) {
            return animation->state() == QAbstractAnimation::Running;
        });
    }

    /// Brings the game into `state`. Nothing leads back to a fresh game, and a run that awaits a
    /// name has to be saved or skipped before another.
    void arriveAt(Session::Phase state) {
        switch (state) {
            case Session::Phase::running:
                startRun();
                break;
            case Session::Phase::paused:
                pauseRun();
                break;
            case Session::Phase::awaitingName:
                endRunAwaitingName();
                break;
            case Session::Phase::saved:
                saveRunAs("Ada");
                break;
            case Session::Phase::skipped:
                skipRun();
                break;
            case Session::Phase::fresh:
                break;
        }
        ASSERT_EQ(session.phase(), state);
    }

    KeyMonitor keyMonitor{session};
    GameWindow window{session};
};
