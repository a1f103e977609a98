#pragma once

#include <QAbstractButton>
#include <QColor>

#include "Garden/Widgets/FocusRing.hpp"

namespace Garden {

/// Base class of all buttons. It takes the focus by Tab only and shows a focus ring for it, is
/// clicked by Return and Enter as well as Space, and has a pointing-hand cursor while enabled.
class QuietButton : public QAbstractButton {
    Q_OBJECT

public:
    [[nodiscard]] QSize sizeHint() const override;

protected:
    /// Distances from the outline of a filled button to its hover edge and focus ring, in points.
    static constexpr double hoverEdgeInset = 0.75;
    static constexpr double filledRingInset = 3;

    /// A button as large as `text` in `font` plus `padding` in points: its width at the left and at
    /// the right, its height above and below.
    QuietButton(const QString& text, const QFont& font, QSize padding, QWidget* parent);

    [[nodiscard]] bool hovered() const;
    [[nodiscard]] const FocusRing& focusRing() const { return focusRing_; }
    /// The colour of text and icons outside a fill: `muted`, brighter while hovered, translucent
    /// while pressed or disabled.
    [[nodiscard]] QColor quietColour() const;
    /// Paints `shape` in mint, translucent while pressed or disabled, with `edge` in faint white
    /// while hovered and `ring` in ink for keyboard focus.
    void paintFill(QPainter& painter, const QPainterPath& shape, const QPainterPath& edge,
                   const QPainterPath& ring) const;

    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QSize padding_;
    FocusRing focusRing_;
};

}  // namespace Garden
