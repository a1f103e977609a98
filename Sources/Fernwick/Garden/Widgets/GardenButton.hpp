#pragma once

#include "Garden/Widgets/QuietButton.hpp"

namespace Garden {

/// The primary button: dark text on a mint capsule that grows with its text. Pressing or disabling
/// changes the opacity of the fill and nothing else.
class GardenButton : public QuietButton {
    Q_OBJECT

public:
    explicit GardenButton(const QString& text, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace Garden
