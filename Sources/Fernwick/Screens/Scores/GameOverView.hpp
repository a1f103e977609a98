#pragma once

#include <QPointer>
#include <QVariantAnimation>
#include <QWidget>

#include "Garden/Widgets/ContentDensity.hpp"

class QGraphicsOpacityEffect;
class NameEntry;
class SavedBoard;
class Session;

namespace Garden {
class TrackedLabel;
}

/// The card over the board of an ended run: how it ended and what it scored, then the name entry
/// or, once that is done, the top ten. It has no background of its own: the board is dimmed by
/// `scrim()`. It fades in, but takes keys and clicks at once; there is no fade under reduced
/// motion.
class GameOverView : public QWidget {
    Q_OBJECT

public:
    /// Of the black over the board, once the card has appeared.
    static constexpr double scrimOpacity = 0.65;

    /// `area` is its geometry, known before there are texts to fit into it.
    GameOverView(Session& session, const QRect& area, QWidget* parent);

    /// The opacity of the black over the board, from 0 to `scrimOpacity`.
    [[nodiscard]] double scrim() const;

Q_SIGNALS:
    void scrimChanged();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void refresh();
    void fit();
    void fadeIn();
    void endFade();

    Session& session_;
    bool ended_ = false;
    // From 0 (invisible) to 1. Runs only while the card fades in.
    QVariantAnimation presence_;
    QWidget* card_;
    QPointer<QGraphicsOpacityEffect> fade_;
    Garden::TrackedLabel* headline_;
    Garden::TrackedLabel* result_;
    NameEntry* nameEntry_;
    SavedBoard* savedBoard_;
    Garden::ContentDensity* density_ = nullptr;
};
