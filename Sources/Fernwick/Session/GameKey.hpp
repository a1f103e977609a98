#pragma once

#include <optional>

class QKeyEvent;

/// The keys that the game uses. The arrow keys and W, A, S, D are equivalent.
// The first four are in the order of SnakeCore::Direction.
enum class GameKey { up, down, left, right, space, escape, restart };

/// The game key that was pressed. Arrows, Space and Escape are recognised by their meaning, so
/// those of the keypad and remapped ones work too. W, A, S, D and R are recognised by their
/// position, so that they are in the same place on every keyboard layout; if the event does not
/// tell the position, the letter decides. Returns std::nullopt for keys that the game does not use.
[[nodiscard]] std::optional<GameKey> gameKey(const QKeyEvent& event);
