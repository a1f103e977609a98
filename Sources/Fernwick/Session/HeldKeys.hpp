#pragma once

#include <QtGlobal>
#include <optional>
#include <unordered_map>

#include "SnakeCore/UUID.hpp"

class QKeyEvent;
class Session;

/// Remembers for each key that is held down at which stage of the game it was pressed. An
/// auto-repeat is meant for that stage only: a D held while the run ends must not be typed into the
/// name field, and a Space that has started a run must not pause it.
class HeldKeys {
public:
    /// Takes each press once, auto-repeats included, before anything has handled it. Returns true
    /// for an auto-repeat that was meant for another stage of the game.
    [[nodiscard]] bool isOutdated(const QKeyEvent& press, const Session& session);

    /// Takes each release once, including those that Qt reports between auto-repeats.
    void release(const QKeyEvent& release);

private:
    struct Stage {
        SnakeCore::UUID runID;
        bool awaitingName;

        friend bool operator==(const Stage&, const Stage&) = default;
    };
    // Times are Qt's, in milliseconds; 0 if a program sent the event without one.
    struct Key {
        Stage stage;
        quint64 pressTime;
        std::optional<quint64> releaseTime;

        [[nodiscard]] bool repeatsAt(quint64 time) const;
    };

    std::unordered_map<quint64, Key> keys_;
};
