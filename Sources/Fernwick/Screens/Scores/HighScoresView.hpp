#pragma once

#include <optional>

#include "Garden/Widgets/Sheet.hpp"
#include "Session/Pace.hpp"

class ScoreRows;
class Session;

namespace Garden {
class ChoiceGroup;
}

/// The high-scores sheet: the top ten of each pace.
class HighScoresView : public Garden::Sheet {
    Q_OBJECT

public:
    explicit HighScoresView(Session& session, QWidget* parent = nullptr);

private:
    void refresh();

    Session& session_;
    Garden::ChoiceGroup* speed_;
    ScoreRows* rows_;
    std::optional<Pace> announced_;
};
