#pragma once

#include <QWidget>

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

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void refresh();

    Session& session_;
    Garden::ChoiceGroup* speed_;
    ScoreRows* rows_;
};
