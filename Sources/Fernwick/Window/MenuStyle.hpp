#pragma once

class QMenuBar;

/// Padding at both sides of a title in the menu bar, in points.
inline constexpr int menuItemPadding = 10;

/// Space before each title's padding, also before the first, in points.
inline constexpr int menuItemSpacing = 6;

/// Gives the menu bar and its menus the garden's fonts and colours.
void styleMenuBar(QMenuBar& bar);
