#pragma once

#include <QGraphicsEffect>

namespace Garden {

/// Fades a widget out towards its top and its bottom edge. Disabled, and so without any cost, while
/// both fades have no length.
class EdgeFade : public QGraphicsEffect {
    Q_OBJECT

public:
    EdgeFade() { setEnabled(false); }

    /// How far the fades reach into the widget, in points.
    void setLengths(int top, int bottom);

protected:
    void draw(QPainter* painter) override;

private:
    int top_ = 0;
    int bottom_ = 0;
};

}  // namespace Garden
