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

/// A scrolling list of ranked scores, or a line of text when there are none. The layout sets its
/// height.
class ScoreRows : public QWidget {
    Q_OBJECT

public:
    explicit ScoreRows(QWidget* parent = nullptr);

    /// Shows `entries` in their order, the first as rank 1; highlights the one with the id
    /// `highlighted` and scrolls to it.
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
    // An overlay over the rows' padding, so that the rows keep the whole width.
    QScrollBar* indicator_;
    Garden::FocusRing focusRing_;
    QVBoxLayout* column_;
    QList<ScoreRow*> rows_;
};
