#pragma once

#include <QColor>
#include <QWidget>

/// The small disc in front of the status word.
class StatusDot : public QWidget {
    Q_OBJECT

public:
    explicit StatusDot(QWidget* parent = nullptr);

    void setColor(const QColor& color);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor color_;
};
