#pragma once

/// Sets a dark style, palette and font for menus and for what Qt paints itself, such as selected
/// text.
void applyGardenStyle();
