#pragma once

#include <QList>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>
#include <optional>
#include <vector>

#include "Garden/Widgets/ContentDensity.hpp"
#include "Garden/Widgets/FocusRing.hpp"
#include "SnakeCore/HighScore.hpp"

class QVBoxLayout;
class ScoreRow;

namespace Garden {
class EdgeFade;
class TrackedLabel;
}  // namespace Garden

/// A scrolling list of ranked scores, or a line of text when there are none. The layout sets its
/// height.
class ScoreRows : public QWidget, public Garden::Scalable {
    Q_OBJECT

public:
    explicit ScoreRows(QWidget* parent = nullptr);

    /// The heights of the list in points: at most `full`, and at least `least` where there is less
    /// room.
    void setHeights(int full, int least);

    /// Shows `entries` in their order, the first as rank 1; highlights the one with the id
    /// `highlighted` and scrolls it to the middle, then and when the height of the list changes.
    /// The list fades out towards an edge beyond which it continues.
    void setEntries(const std::vector<SnakeCore::HighScore>& entries,
                    const std::optional<SnakeCore::UUID>& highlighted = std::nullopt);

    /// Each row as a screen reader says it, or the line when there are none.
    [[nodiscard]] QStringList texts() const;
    /// The same of the highlighted row; empty without one.
    [[nodiscard]] QString highlightedText() const;

    void setDensity(const Garden::Density& density) override;

    [[nodiscard]] QSize sizeHint() const override;

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void showIndicator();
    /// Whether the list has less than its full size, and then no part of a row.
    [[nodiscard]] bool showsWholeRows() const;
    [[nodiscard]] int listHeight() const;
    /// From one row to the next.
    [[nodiscard]] int pitch() const;
    void placeList();
    void followRange(int lowest, int highest);
    void setRowCount(std::size_t count);
    void showHighlighted();
    void fadeEdges();

    int fullHeight_ = 0;
    int leastHeight_ = 0;
    Garden::Density density_;
    QWidget* empty_;
    Garden::TrackedLabel* emptyText_;
    QScrollArea* scrollArea_;
    Garden::EdgeFade* fade_;
    // An overlay over the rows' padding, so that the rows keep the whole width.
    QScrollBar* indicator_;
    Garden::FocusRing focusRing_;
    QVBoxLayout* column_;
    QList<ScoreRow*> rows_;
    std::vector<SnakeCore::HighScore> entries_;
    std::optional<SnakeCore::UUID> highlighted_;
    QPointer<ScoreRow> highlightedRow_;
};
