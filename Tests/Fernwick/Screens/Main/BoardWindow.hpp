#pragma once

#include <QCoreApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>
#include <QWidget>

#include "Painting/Ground/Backdrop.hpp"
#include "Screens/Main/Board.hpp"

/// A window with a board in it, laid out as the main screen does: the board in an area of its own,
/// the ground painted behind.
class BoardWindow : public QWidget {
public:
    explicit BoardWindow(const QSize& size = {700, 560})
        : area_(new QWidget(this)), board_(new Board(backdrop_, area_)) {
        board_->installEventFilter(this);
        QWidget::resize(size);
        show();
        settle();
    }

    [[nodiscard]] Board& board() { return *board_; }

    /// The exact frame, in points of the window.
    [[nodiscard]] QRectF frame() const {
        return Board::fit(area_->rect()).frame.translated(area_->pos());
    }

    [[nodiscard]] QPoint middleOf(const SnakeCore::Cell& cell) const {
        const double edge = Board::fit(area_->rect()).cell;
        const QPointF offset(static_cast<double>(cell.x) + 0.5, static_cast<double>(cell.y) + 0.5);
        return (frame().topLeft() + offset * edge).toPoint();
    }

    /// Lets everything that is due happen, painting as well.
    void settle() {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }

    /// What of the board was painted on settling.
    [[nodiscard]] QRegion paintedOnSettling() {
        painted_ = {};
        settle();
        return painted_;
    }

    [[nodiscard]] QImage picture() {
        settle();
        return grab().toImage().convertToFormat(QImage::Format_RGB32);
    }

    /// What has reached the screen so far.
    [[nodiscard]] QImage onScreen() {
        return screen()->grabWindow(winId()).toImage().convertToFormat(QImage::Format_RGB32);
    }

    [[nodiscard]] QImage ground() {
        backdrop_.fit(size(), devicePixelRatioF(), frame());
        QImage ground = backdrop_.image(backdrop_.bounds());
        ground.setDevicePixelRatio(devicePixelRatioF());
        return ground;
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            painted_ += static_cast<QPaintEvent*>(event)->region();
        }
        return false;
    }

    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.drawImage(QPoint(), ground());
    }

    void resizeEvent(QResizeEvent*) override {
        // Odd margins, so that the frame's edges are fractions.
        area_->setGeometry(rect().adjusted(31, 43, -38, -52));
        board_->setGeometry(Board::fit(area_->rect()).frame.toAlignedRect());
    }

private:
    Backdrop backdrop_;
    QWidget* area_;
    Board* board_;
    QRegion painted_;
};
