#pragma once

#include "Garden/Widgets/QuietButton.hpp"

namespace Garden {

/// A primary button: dark text on a mint fill. Pressing or disabling it changes only the opacity of
/// the fill.
class GardenButton : public QuietButton {
    Q_OBJECT

public:
    enum class Style {
        capsule,  ///< of a card or sheet
        arrow,    ///< of the overlay: a rounded rectangle with an arrow in reading direction
    };

    explicit GardenButton(const QString& text, QWidget* parent = nullptr,
                          Style style = Style::capsule);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QPainterPath shape(double distance, double radius) const;
    void paintTextAndArrow(QPainter& painter) const;
    /// Of the arrow and the space before it.
    [[nodiscard]] int arrowWidth() const;
    [[nodiscard]] int arrowSize() const;

    Style style_;
};

}  // namespace Garden
