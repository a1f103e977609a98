#pragma once

#include <QList>
#include <QScrollArea>
#include <QScrollBar>
#include <optional>
#include <vector>

#include "Garden/Widgets/FocusRing.hpp"
#include "SnakeCore/HighScore.hpp"

class QVBoxLayout;
class ScoreRow;

namespace Garden {
class TrackedLabel;
}

/// A ranked list of saved scores that scrolls, or one inviting line when there are none. Its
/// height is its container's to set.
class ScoreRows : public QWidget {
    Q_OBJECT

public:
    explicit ScoreRows(QWidget* parent = nullptr);

    /// Shows `entries` in their order, the first as rank 1, and picks out the one whose id is
    /// `highlighted`, scrolling to it.
    void setEntries(const std::vector<SnakeCore::HighScore>& entries,
                    const std::optional<SnakeCore::UUID>& highlighted = std::nullopt);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void showIndicator();
    void followRange(int lowest, int highest);
    void setRowCount(std::size_t count);

    Garden::TrackedLabel* empty_;
    QScrollArea* scrollArea_;
    // Lies over the padding of the rows, which keep the whole width.
    QScrollBar* indicator_;
    Garden::FocusRing focusRing_;
    QVBoxLayout* column_;
    QList<ScoreRow*> rows_;
};
