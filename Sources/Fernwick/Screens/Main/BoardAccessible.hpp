#pragma once

#include <QAccessibleWidget>

class Board;

/// Tells assistive technology that the board is a picture, named by what it shows.
class BoardAccessible : public QAccessibleWidget {
public:
    explicit BoardAccessible(Board* board);

    /// Makes every board speak through this class; once is enough.
    static void install();
};
