#pragma once

/// Sets a dark style, palette and font for the parts that Qt paints itself: menus, tool tips and
/// text selection.
void applyGardenStyle();
