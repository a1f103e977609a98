#pragma once

#include <QObject>

#include "Desktop/KeyboardFocus.hpp"
#include "Session/KeyMonitor.hpp"
#include "Session/Session.hpp"
#include "Window/GameWindow.hpp"

class Preferences;
class SoundEffects;

/// The application from launch to exit: owns the session, the key monitor and the window.
class FernwickApp : public QObject {
    Q_OBJECT

public:
    /// Both references must outlive it.
    FernwickApp(Preferences& preferences, SoundEffects& soundEffects);

    /// Shows the window and brings it to the front.
    void show();
    /// Brings the window to the front, also from minimised, or asks for attention where the desktop
    /// does not permit that. `activationToken` is its permission (xdg-activation or startup
    /// notification); may be empty.
    void bringForward(const QByteArray& activationToken);

    /// Brings the window to the front as above, and starts a run if that is allowed.
    void startNewGame(const QByteArray& activationToken);

    [[nodiscard]] Session& session() { return session_; }
    [[nodiscard]] Desktop::KeyboardFocus& keyboardFocus() { return keyboardFocus_; }
    [[nodiscard]] GameWindow& window() { return window_; }

private:
    Session session_;
    KeyMonitor keyMonitor_;
    Desktop::KeyboardFocus keyboardFocus_;
    GameWindow window_;
};
