#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "SnakeCore/Game.hpp"

class Preferences;
class Session;

/// A screen of the game in one of its states.
struct Scene {
    QString name;
    /// Stores what the session reads when it is made.
    std::function<void(Preferences&)> store;
    /// The game that the first tick of a run shows.
    std::function<SnakeCore::Game()> game;
    /// Brings the new session into the state.
    std::function<void(Session&)> arrange;
};

[[nodiscard]] std::vector<Scene> galleryScenes();
