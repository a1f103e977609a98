#include "Session/GameKey.hpp"

#include <QKeyEvent>
#include <algorithm>
#include <array>

namespace {

struct NamedKey {
    Qt::Key key;
    GameKey gameKey;
};

// Wherever they are: on the keypad, or Escape on the Caps Lock key.
constexpr std::array namedKeys{
    NamedKey{Qt::Key_Up, GameKey::up},
    NamedKey{Qt::Key_Down, GameKey::down},
    NamedKey{Qt::Key_Left, GameKey::left},
    NamedKey{Qt::Key_Right, GameKey::right},
    NamedKey{Qt::Key_Space, GameKey::space},
    // Shift+Space on some French layouts.
    NamedKey{Qt::Key_nobreakspace, GameKey::space},
    NamedKey{Qt::Key_Escape, GameKey::escape},
};

struct Letter {
    quint32 scanCode;
    Qt::Key key;
    GameKey gameKey;
};

constexpr std::array letters{
    Letter{25, Qt::Key_W, GameKey::up},      Letter{38, Qt::Key_A, GameKey::left},
    Letter{39, Qt::Key_S, GameKey::down},    Letter{40, Qt::Key_D, GameKey::right},
    Letter{27, Qt::Key_R, GameKey::restart},
};

// Scan codes are the kernel's evdev codes plus 8, on X11 and on Wayland. Every key that has W, A,
// S, D or R on some layout is in the block from 1 (KEY_1) to the slash (KEY_SLASH). Programs and
// on-screen keyboards send 0, or a code that no such key has: those say nothing about a position.
constexpr quint32 firstTypewriterKey = 10;
constexpr quint32 lastTypewriterKey = 61;

constexpr bool isTypewriterKey(quint32 scanCode) {
    return scanCode >= firstTypewriterKey && scanCode <= lastTypewriterKey;
}

template <typename Row, std::size_t size>
std::optional<GameKey> find(const std::array<Row, size>& rows, const auto& value, auto column) {
    const auto* const row = std::ranges::find(rows, value, column);
    return row == rows.end() ? std::nullopt : std::optional(row->gameKey);
}

}  // namespace

std::optional<GameKey> gameKey(const QKeyEvent& event) {
    const auto key = static_cast<Qt::Key>(event.key());
    if (const std::optional<GameKey> named = find(namedKeys, key, &NamedKey::key)) {
        return named;
    }
    return isTypewriterKey(event.nativeScanCode())
               ? find(letters, event.nativeScanCode(), &Letter::scanCode)
               : find(letters, key, &Letter::key);
}
