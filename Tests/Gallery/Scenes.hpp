#pragma once

#include <QString>
#include <functional>
#include <vector>

class Session;

/// A screen of the game in one of its states.
struct Scene {
    QString name;
    /// Brings a session fresh from the start into the state.
    std::function<void(Session&)> arrange;
};

[[nodiscard]] std::vector<Scene> galleryScenes();
