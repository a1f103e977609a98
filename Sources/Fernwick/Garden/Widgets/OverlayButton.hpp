#pragma once

#include "Garden/Widgets/QuietButton.hpp"

namespace Garden {

/// The way on, over the resting board: a text and an arrow in the direction of reading, dark on
/// mint.
class OverlayButton : public QuietButton {
    Q_OBJECT

public:
    explicit OverlayButton(const QString& text, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] double textWidth() const;
};

}  // namespace Garden
