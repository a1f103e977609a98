#include "Session/GameKey.hpp"

#include <QKeyEvent>
#include <algorithm>
#include <array>

namespace {

struct Row {
    GameKey gameKey;
    // On X11 and Wayland: the kernel's evdev code plus 8.
    quint32 scanCode;
    Qt::Key key;
};

constexpr std::array table{
    Row{GameKey::up, 111, Qt::Key_Up},       Row{GameKey::up, 25, Qt::Key_W},
    Row{GameKey::down, 116, Qt::Key_Down},   Row{GameKey::down, 39, Qt::Key_S},
    Row{GameKey::left, 113, Qt::Key_Left},   Row{GameKey::left, 38, Qt::Key_A},
    Row{GameKey::right, 114, Qt::Key_Right}, Row{GameKey::right, 40, Qt::Key_D},
    Row{GameKey::space, 65, Qt::Key_Space},  Row{GameKey::escape, 9, Qt::Key_Escape},
    Row{GameKey::restart, 27, Qt::Key_R},
};

}  // namespace

std::optional<GameKey> gameKey(const QKeyEvent& event) {
    const auto* const row = event.nativeScanCode() == 0
                                ? std::ranges::find(table, event.key(), &Row::key)
                                : std::ranges::find(table, event.nativeScanCode(), &Row::scanCode);
    return row == table.end() ? std::nullopt : std::optional(row->gameKey);
}
