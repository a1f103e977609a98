#pragma once

/// Gives the application its one, dark appearance: style, colours and font of everything that is
/// not drawn by the garden itself (menus, tool tips, text selection).
void applyGardenStyle();
