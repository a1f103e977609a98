#pragma once

#include <QAbstractButton>
#include <QColor>

#include "Garden/Widgets/FocusRing.hpp"

namespace Garden {

/// What every button of the garden shares: reached by Tab and pressed by Return as well, shown
/// with a focus ring only to those who use the keyboard, a pointing hand while it can be pressed.
class QuietButton : public QAbstractButton {
    Q_OBJECT

protected:
    /// Width of the edge in logical pixels; a path inset by half of it stays inside its widget.
    static constexpr double hoverEdgeWidth = 1.5;

    explicit QuietButton(QWidget* parent);

    [[nodiscard]] bool hovered() const;
    [[nodiscard]] const FocusRing& focusRing() const { return focusRing_; }
    /// The size of the text with this padding on either side of it, in logical pixels.
    [[nodiscard]] QSize paddedTextSize(int horizontalPadding, int verticalPadding) const;
    /// The colour of quiet text and symbols: `muted`, a little brighter under the pointer, fainter
    /// while pressed and fainter still while disabled.
    [[nodiscard]] QColor quietColour() const;

    /// Under the pointer, traces `outline` of a filled button in faint light.
    void paintHoverEdge(QPainter& painter, const QPainterPath& outline) const;

    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    FocusRing focusRing_;
};

/// How opaque the mint fill of a primary button is.
[[nodiscard]] double fillOpacity(bool enabled, bool pressed);

}  // namespace Garden
