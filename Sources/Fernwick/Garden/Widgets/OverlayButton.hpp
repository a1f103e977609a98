#pragma once

#include "Garden/Widgets/QuietButton.hpp"

namespace Garden {

/// The primary button of the overlay on the board: dark text and an arrow in reading direction on a
/// mint rounded rectangle.
class OverlayButton : public QuietButton {
    Q_OBJECT

public:
    explicit OverlayButton(const QString& text, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace Garden
