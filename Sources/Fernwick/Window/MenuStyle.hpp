#pragma once

class QMenuBar;

/// Padding on both sides of a title in the menu bar, in points.
inline constexpr int menuItemPadding = 10;

/// Space before each title, including the first, in addition to its padding, in points.
inline constexpr int menuItemSpacing = 6;

/// Applies the game's fonts and colours to the menu bar and its menus.
void styleMenuBar(QMenuBar& bar);
