#pragma once

#include <QCoreApplication>
#include <QScreen>
#include <optional>

#include "App/Language.hpp"
#include "Gallery/Scenes.hpp"
#include "Session/Session.hpp"
#include "Session/SoundEffects.hpp"
#include "Storage/PreferencesFile.hpp"
#include "Window/GameWindow.hpp"

class Silence : public SoundEffects {
public:
    void play(SoundEffect) override {}
};

/// The window with the session of a scene, in a language.
class SceneWindow {
public:
    SceneWindow(const QString& language, const Scene& scene, Pace pace)
        : language_(language), scene_(scene) {
        scene_.store(preferences_);
        session_.emplace(preferences_, sounds_,
                         [this](SnakeCore::Game& game) { game = scene_.game(); });
        session_->choosePace(pace);
        scene_.arrange(*session_);
        window_.emplace(*session_);
        window_->show();
        processEvents();
    }

    /// Makes the window as large as `screen`: in full screen, or maximised, as a tile is.
    void cover(QScreen* screen, Qt::WindowState state) {
        // Qt asks for a state only if it is another one.
        window_->setWindowState(Qt::WindowNoState);
        window_->setScreen(screen);
        window_->setWindowState(state);
        processEvents();
    }

    /// Stops painting, which takes most of the time of a change of size.
    void dontPaint() { window_->setUpdatesEnabled(false); }

    [[nodiscard]] GameWindow& window() { return *window_; }
    [[nodiscard]] Session& session() { return *session_; }

    static void processEvents() {
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }

private:
    Language language_;
    Scene scene_;
    Storage::PreferencesFile preferences_{std::filesystem::path()};
    Silence sounds_;
    std::optional<Session> session_;
    std::optional<GameWindow> window_;
};
