#pragma once

#include <QWidget>

#include "Garden/Widgets/ContentDensity.hpp"
#include "SnakeCore/HighScore.hpp"

/// One row of a ranked list: rank, name and score on a faint plate, or on a mint one if
/// highlighted.
class ScoreRow : public QWidget, public Garden::Scalable {
    Q_OBJECT

public:
    explicit ScoreRow(QWidget* parent = nullptr);

    /// `rank` counts from 1. Does nothing if all three are unchanged.
    void show(std::int64_t rank, const SnakeCore::HighScore& entry, bool highlighted);

    void setDensity(const Garden::Density& density) override;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// `area`, mirrored in a right-to-left layout.
    [[nodiscard]] QRectF asRead(const QRectF& area) const;

    QString rank_;
    QString name_;
    QString score_;
    bool highlighted_ = false;
    double scale_ = 1;
};
