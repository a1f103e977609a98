#pragma once

#include <QWidget>

#include "SnakeCore/HighScore.hpp"

/// One line of a ranked list: rank, name, score, on a faint plate or, picked out, a mint one.
class ScoreRow : public QWidget {
    Q_OBJECT

public:
    explicit ScoreRow(QWidget* parent = nullptr);

    /// `rank` counts from 1. Does nothing when all three are as before.
    void show(std::int64_t rank, const SnakeCore::HighScore& entry, bool highlighted);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// `place`, or its mirror image where lines are read from right to left.
    [[nodiscard]] QRectF asRead(const QRectF& place) const;

    QString rank_;
    QString name_;
    QString score_;
    bool highlighted_ = false;
};
