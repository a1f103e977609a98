#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "SnakeCore/Game.hpp"

class Preferences;
class Session;

/// A state of the game to take a picture of.
struct Scene {
    QString name;
    /// Stores the preferences that the session reads at construction.
    std::function<void(Preferences&)> store;
    /// The game after the first tick of a run.
    std::function<SnakeCore::Game()> game;
    /// Brings a new session into the state.
    std::function<void(Session&)> arrange;
};

[[nodiscard]] std::vector<Scene> galleryScenes();
