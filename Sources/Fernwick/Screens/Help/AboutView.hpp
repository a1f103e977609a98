#pragma once

#include "Garden/Widgets/Sheet.hpp"

/// The sheet that tells the version of the program, and the licences of the fonts and libraries
/// that it is built with.
class AboutView : public Garden::Sheet {
    Q_OBJECT

public:
    explicit AboutView(QWidget* parent = nullptr);
};
