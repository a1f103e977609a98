#pragma once

#include <QColor>
#include <QWidget>

#include "Garden/Widgets/ContentDensity.hpp"

namespace Garden {

/// The dot in front of the status text, 5 points across or larger.
class StatusDot : public QWidget, public Scalable {
    Q_OBJECT

public:
    explicit StatusDot(QWidget* parent = nullptr);

    void setColour(const QColor& colour);
    void setDensity(const Density& density) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    // At least 1.
    double scale_ = 1;
    QColor colour_;
};

}  // namespace Garden
