#pragma once

#include <QGraphicsEffect>

namespace Garden {

/// Animates a widget's appearance: it fades in while it moves up to its position. Only the painting
/// is offset; the widget's geometry, and so mouse input, is not.
class RiseEffect : public QGraphicsEffect {
    Q_OBJECT

public:
    using QGraphicsEffect::QGraphicsEffect;

    /// How far below its position a widget of presence 0 is drawn, in points.
    static constexpr double rise = 14;

    /// How far below its position a widget of this presence is drawn, in points.
    [[nodiscard]] static constexpr double shift(double presence) { return (1 - presence) * rise; }

    /// From 0, invisible, to 1, the widget as usual.
    void setPresence(double presence);

    [[nodiscard]] QRectF boundingRectFor(const QRectF& source) const override;

protected:
    void draw(QPainter* painter) override;

private:
    double presence_ = 0;
};

}  // namespace Garden
