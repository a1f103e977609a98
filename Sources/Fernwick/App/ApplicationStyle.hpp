#pragma once

/// Sets a dark style and palette for menus and for what Qt paints itself, such as selected text.
void applyGardenStyle();

/// Sets the fonts of menus and of what Qt writes itself.
void applyGardenFonts();
