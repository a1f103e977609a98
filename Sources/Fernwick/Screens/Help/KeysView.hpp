#pragma once

#include "Garden/Widgets/Sheet.hpp"

/// The sheet of all keys of the game.
class KeysView : public Garden::Sheet {
    Q_OBJECT

public:
    explicit KeysView(QWidget* parent = nullptr);
};
