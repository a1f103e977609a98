#pragma once

/// Sets the dark style, palette and font of whatever the garden's own widgets do not paint: menus,
/// tool tips, text selection.
void applyGardenStyle();
