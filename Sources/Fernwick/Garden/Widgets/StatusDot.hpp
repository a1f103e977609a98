#pragma once

#include <QColor>
#include <QWidget>

/// The small disc in front of the status word.
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
