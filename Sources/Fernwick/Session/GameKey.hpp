#pragma once

#include <optional>

class QKeyEvent;

/// What a key does in the game. The arrows and W, A, S, D are the same four keys to it.
// The first four are in the order of SnakeCore::Direction.
enum class GameKey { up, down, left, right, space, escape, restart };

/// The game key at the position of the key that was pressed, so that W, A, S, D and R mean the same
/// places on every keyboard layout. An event without a position (scan code 0), as programs send
/// them, counts by its letter. Nothing for keys that the game does not use.
[[nodiscard]] std::optional<GameKey> gameKey(const QKeyEvent& event);
