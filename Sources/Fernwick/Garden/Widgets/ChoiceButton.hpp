#pragma once

#include "Garden/Widgets/QuietButton.hpp"

namespace Garden {

/// One choice of a `ChoiceGroup`, checked while it is the current one.
class ChoiceButton : public QuietButton {
    Q_OBJECT

public:
    explicit ChoiceButton(const QString& text, QWidget* parent = nullptr);

Q_SIGNALS:
    /// The left or right arrow key was pressed: `step` is +1 towards the next choice, -1 towards
    /// the previous one.
    void arrowPressed(int step);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    /// Does nothing: a click does not check the button, `ChoiceGroup::setCurrent` does.
    void nextCheckState() override;
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace Garden
