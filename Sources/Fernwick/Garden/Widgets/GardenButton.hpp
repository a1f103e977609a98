#pragma once

#include "Garden/Widgets/QuietButton.hpp"

namespace Garden {

/// The primary button of a card or sheet: dark text on a mint capsule. Pressing or disabling it
/// changes only the opacity of the fill.
class GardenButton : public QuietButton {
    Q_OBJECT

public:
    explicit GardenButton(const QString& text, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace Garden
