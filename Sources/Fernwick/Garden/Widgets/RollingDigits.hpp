#pragma once

#include <QBrush>
#include <QString>
#include <QVariantAnimation>
#include <QWidget>

#include "Garden/Widgets/ContentDensity.hpp"

namespace Garden {

/// A number of at least three digits. Digits that change roll upwards, or, with reduced motion,
/// change in place. No timer runs except during that animation.
class RollingDigits : public QWidget, public Scalable {
    Q_OBJECT

public:
    /// `alignment`, left or right, is the fixed side when the number of digits changes; mirrored in
    /// right-to-left layouts.
    explicit RollingDigits(Qt::Alignment alignment, QWidget* parent = nullptr);

    [[nodiscard]] qint64 value() const { return value_; }
    /// The first value is shown without animation.
    void setValue(qint64 value);

    void setDensity(const Density& density) override;

    /// The part of the widget that digits at rest fill. Above and below it they only roll.
    [[nodiscard]] QRect restArea() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// Left edge of the cell of the digit with this index, counted from the right.
    [[nodiscard]] double left(int fromRight) const;
    /// Mint that becomes transparent above and below the digits at rest, so that the edges of the
    /// widget do not cut off digits that roll.
    [[nodiscard]] QBrush fadedAtEdges(double opacity) const;

    Qt::Alignment alignment_;
    qint64 value_ = 0;
    QString shown_;
    QString previous_;
    QVariantAnimation roll_;
};

}  // namespace Garden
