#pragma once

#include <QByteArray>

namespace Desktop {

/// Asks the Wayland compositor for an activation token (xdg-activation). It is not a permission to
/// come to the front, because no input of the user belongs to it: the compositor marks the window
/// that uses it instead. Empty if the compositor has no tokens or does not answer within a second.
[[nodiscard]] QByteArray requestWaylandToken();

}  // namespace Desktop
