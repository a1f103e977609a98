#pragma once

class QMenuBar;

/// The room on either side of a title in the menu bar, in points.
inline constexpr int menuItemPadding = 10;

/// Dresses the menu bar and its menus in the garden's colours.
void styleMenuBar(QMenuBar& bar);
