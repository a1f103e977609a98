#pragma once

#include "Garden/Widgets/QuietButton.hpp"

namespace Garden {

/// One word of a `ChoiceGroup`: checked while it is the current one.
class ChoiceButton : public QuietButton {
    Q_OBJECT

public:
    explicit ChoiceButton(const QString& text, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    /// The arrow towards the next (+1) or the previous (-1) choice was pressed on this one.
    void steppedOff(int step);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    /// Does nothing: which choice is current is the owner's to say, not a click's.
    void nextCheckState() override;
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace Garden
