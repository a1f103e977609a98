#pragma once

#include <QWidget>

class ScoreRows;
class Session;

namespace Garden {
class ChoiceGroup;
}

/// The sheet of saved scores, one board a pace. It paints its own background; whoever presents it
/// shows it while the session is showing scores.
class HighScoresView : public QWidget {
    Q_OBJECT

public:
    explicit HighScoresView(Session& session, QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void refresh();
    void close();

    Session& session_;
    Garden::ChoiceGroup* speed_;
    ScoreRows* rows_;
};
