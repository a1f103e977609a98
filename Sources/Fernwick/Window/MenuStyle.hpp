#pragma once

class QMenuBar;

/// The room on either side of a title in the menu bar, in points.
inline constexpr int menuItemPadding = 10;

/// The room in front of each title's padding, also of the first, in points.
inline constexpr int menuItemSpacing = 6;

/// Dresses the menu bar and its menus in the garden's colours.
void styleMenuBar(QMenuBar& bar);
