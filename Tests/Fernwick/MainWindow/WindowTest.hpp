#pragma once

#include <QCoreApplication>

#include "Fernwick/Screen.hpp"
#include "Fernwick/Session/SessionTest.hpp"
#include "MainWindow/GameWindow.hpp"

/// The whole window around a session whose time passes only when a test lets it.
class WindowTest : public SessionTest {
protected:
    WindowTest() {
        session.installKeys();
        window.show();
        settle();
    }

    /// Lets the window follow the session and lay out anew what that changed.
    static void settle() {
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
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
        session.playerName = name;
        session.saveScore();
        settle();
    }

    void skipRun() {
        startAndEndRun();
        session.skipSaving();
        settle();
    }

    GameWindow window{session};
};
