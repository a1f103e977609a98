#pragma once

#include <QString>
#include <QVariantAnimation>
#include <QWidget>

namespace Garden {

/// A score of at least three digits. Digits that change roll upwards once; nothing ticks before or
/// after, and under reduced motion they change in place.
class RollingDigits : public QWidget {
    Q_OBJECT

public:
    /// `alignment` (left or right) is the side that stays put when the number grows longer; the
    /// other one where lines are read from right to left.
    explicit RollingDigits(Qt::Alignment alignment, QWidget* parent = nullptr);

    [[nodiscard]] qint64 value() const { return value_; }
    /// The first value appears at once; later ones roll in.
    void setValue(qint64 value);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// Left edge of the cell of a digit, counted from the right.
    [[nodiscard]] double left(int fromRight) const;
    void announce();

    Qt::Alignment alignment_;
    qint64 value_ = 0;
    QString shown_;
    QString previous_;
    QVariantAnimation roll_;
};

}  // namespace Garden
