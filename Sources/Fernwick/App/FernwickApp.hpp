#pragma once

#include <QObject>

#include "Session/KeyMonitor.hpp"
#include "Session/Session.hpp"
#include "Window/GameWindow.hpp"

class Preferences;
class SoundEffects;

/// The application around its one session and its one window, from launch to exit.
class FernwickApp : public QObject {
    Q_OBJECT

public:
    /// Both references must outlive it.
    FernwickApp(Preferences& preferences, SoundEffects& soundEffects);

    /// Shows the window, starts to watch the keys and brings the game to the front.
    void show();
    /// Brings the window to the front, also one that is minimised. `activationToken` is what the
    /// desktop gave whoever asks for it; may be empty.
    void bringForward(const QByteArray& activationToken);

    [[nodiscard]] Session& session() { return session_; }
    [[nodiscard]] GameWindow& window() { return window_; }

private:
    void applicationStateChanged(Qt::ApplicationState state);

    Session session_;
    KeyMonitor keyMonitor_;
    GameWindow window_;
};
