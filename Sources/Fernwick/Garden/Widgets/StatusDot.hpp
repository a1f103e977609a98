#pragma once

#include <QColor>
#include <QWidget>

namespace Garden {

/// The dot in front of the status text, 5 points across.
class StatusDot : public QWidget {
    Q_OBJECT

public:
    explicit StatusDot(QWidget* parent = nullptr);

    void setColour(const QColor& colour);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor colour_;
};

}  // namespace Garden
