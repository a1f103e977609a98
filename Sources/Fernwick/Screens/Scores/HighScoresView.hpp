#pragma once

#include <QWidget>

#include "Garden/Widgets/ContentDensity.hpp"

class ScoreRows;
class Session;

namespace Garden {
class ChoiceGroup;
}

/// The high-scores sheet: the top ten of each pace. `SheetLayer` shows and hides it.
class HighScoresView : public QWidget {
    Q_OBJECT

public:
    explicit HighScoresView(Session& session, QWidget* parent = nullptr);

    /// Makes it fit the height `available`, and returns the size that it needs, in points.
    QSize fittedTo(int available);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void refresh();

    Session& session_;
    Garden::ChoiceGroup* speed_;
    ScoreRows* rows_;
    double scale_ = 1;
    Garden::ContentDensity* density_ = nullptr;
};
