#include "Session/KeyCode.hpp"

#include <QKeyEvent>
#include <algorithm>
#include <array>

namespace {

struct KeyRow {
    std::uint16_t code;
    // X11 and Wayland number keys as the kernel's input codes plus 8.
    std::uint32_t scanCode;
    Qt::Key key;
};

constexpr std::array rows{
    KeyRow{KeyCode::upArrow, 111, Qt::Key_Up},
    KeyRow{KeyCode::downArrow, 116, Qt::Key_Down},
    KeyRow{KeyCode::leftArrow, 113, Qt::Key_Left},
    KeyRow{KeyCode::rightArrow, 114, Qt::Key_Right},
    KeyRow{KeyCode::w, 25, Qt::Key_W},
    KeyRow{KeyCode::a, 38, Qt::Key_A},
    KeyRow{KeyCode::s, 39, Qt::Key_S},
    KeyRow{KeyCode::d, 40, Qt::Key_D},
    KeyRow{KeyCode::space, 65, Qt::Key_Space},
    KeyRow{KeyCode::escape, 9, Qt::Key_Escape},
    KeyRow{KeyCode::r, 27, Qt::Key_R},
    KeyRow{KeyCode::returnKey, 36, Qt::Key_Return},
};

}  // namespace

std::uint16_t physicalKey(const QKeyEvent& event) {
    const auto* const found =
        event.nativeScanCode() == 0
            ? std::ranges::find(rows, event.key(), &KeyRow::key)
            : std::ranges::find(rows, event.nativeScanCode(), &KeyRow::scanCode);
    return found == rows.end() ? KeyCode::other : found->code;
}
