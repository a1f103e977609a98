#pragma once

#include <QWidget>

namespace Garden {

/// The vertical line between the two score tiles, 1 × 36 points.
class Rule : public QWidget {
    Q_OBJECT

public:
    explicit Rule(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace Garden
