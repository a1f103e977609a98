#pragma once

#include <QWidget>

/// The fine vertical line between the two score tiles.
class Rule : public QWidget {
    Q_OBJECT

public:
    explicit Rule(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};
