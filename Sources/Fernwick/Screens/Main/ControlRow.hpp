#pragma once

#include <QWidget>

#include "Garden/Widgets/ContentDensity.hpp"
#include "Session/Session.hpp"

class QBoxLayout;

namespace Garden {
class ChoiceGroup;
class StatusDot;
class TrackedLabel;
}  // namespace Garden

/// The row under the header: the speed selector on the left, the status on the right; or, in a
/// column, below it.
class ControlRow : public QWidget {
    Q_OBJECT

public:
    explicit ControlRow(Session& session, QWidget* parent = nullptr);

    /// `columnWidth` is in points; 0 makes it a row.
    void arrange(int columnWidth, const Garden::Density& density);

private:
    void refresh();
    [[nodiscard]] QString statusWord() const;
    void announce();

    Session& session_;
    // What has been announced.
    SnakeCore::UUID run_;
    Session::Phase phase_;
    Pace pace_;
    std::int64_t score_ = 0;
    Garden::ChoiceGroup* speeds_;
    Garden::StatusDot* dot_;
    Garden::TrackedLabel* status_;
    QBoxLayout* row_;
    Garden::ContentDensity* density_ = nullptr;
    Garden::ContentDensity* speedsDensity_ = nullptr;
};
