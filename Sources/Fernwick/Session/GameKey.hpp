#pragma once

#include <optional>

class QKeyEvent;

/// The keys that the game uses. The arrow keys and W, A, S, D are equivalent.
// The first four are in the order of SnakeCore::Direction.
enum class GameKey { up, down, left, right, space, escape, restart };

/// The game key at the position of the key that was pressed, so that W, A, S, D and R are in the
/// same place on every keyboard layout. For an event without a scan code, as sent by programs, the
/// letter decides. Returns std::nullopt for keys that the game does not use.
[[nodiscard]] std::optional<GameKey> gameKey(const QKeyEvent& event);
