#pragma once

#include <QGraphicsEffect>

namespace Garden {

/// Draws a widget as far as it has come: fainter and a little below its place. Only the picture is
/// moved; the pointer finds the widget where it is going to be.
class RiseEffect : public QGraphicsEffect {
    Q_OBJECT

public:
    using QGraphicsEffect::QGraphicsEffect;

    /// How far below its place a widget begins, in logical pixels.
    static constexpr double rise = 14;

    /// How far below its place a widget of this presence (0 to 1) is drawn.
    [[nodiscard]] static constexpr double shift(double presence) { return (1 - presence) * rise; }

    /// 0: nothing to be seen; 1: the widget as it is.
    void setPresence(double presence);

    [[nodiscard]] QRectF boundingRectFor(const QRectF& source) const override;

protected:
    void draw(QPainter* painter) override;

private:
    double presence_ = 0;
};

}  // namespace Garden
