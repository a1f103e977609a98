#pragma once

#include <QWidget>

class Session;

namespace Garden {
class ChoiceGroup;
class StatusDot;
class TrackedLabel;
}  // namespace Garden

/// The row under the header: the speed selector on the left, the status on the right.
class ControlRow : public QWidget {
    Q_OBJECT

public:
    explicit ControlRow(Session& session, QWidget* parent = nullptr);

private:
    void refresh();
    [[nodiscard]] QString statusWord() const;

    Session& session_;
    Garden::ChoiceGroup* speeds_;
    Garden::StatusDot* dot_;
    Garden::TrackedLabel* status_;
};
