#pragma once

#include <QCoreApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>
#include <QWidget>

#include "Painting/Ground/Backdrop.hpp"
#include "Screens/Main/Board.hpp"

/// A window with a board in front of the backdrop, placed as on the main screen.
class BoardWindow : public QWidget {
public:
    explicit BoardWindow(const QSize& size = {700, 560}, bool idle = false)
        : board_(new Board(backdrop_, SnakeCore::Game(28, 22), this)) {
        board_->installEventFilter(this);
        board_->setIdle(idle);
        QWidget::resize(size);
        show();
        settle();
    }

    [[nodiscard]] Board& board() { return *board_; }

    /// The frame in points of the window. Odd margins make its edges fractions.
    [[nodiscard]] QRectF frame() const { return fitted().frame; }

    [[nodiscard]] QPoint middleOf(const SnakeCore::Cell& cell) const {
        const QPointF offset(static_cast<double>(cell.x) + 0.5, static_cast<double>(cell.y) + 0.5);
        return (frame().topLeft() + offset * fitted().cell).toPoint();
    }

    /// Handles all pending events, including repaints.
    void settle() {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }

    /// Settles; returns the part of the board that was repainted.
    [[nodiscard]] QRegion paintedOnSettling() {
        painted_ = {};
        settle();
        return painted_;
    }

    [[nodiscard]] QImage picture() {
        settle();
        return grab().toImage().convertToFormat(QImage::Format_RGB32);
    }

    /// A screenshot of the window.
    [[nodiscard]] QImage onScreen() {
        return screen()->grabWindow(winId()).toImage().convertToFormat(QImage::Format_RGB32);
    }

    [[nodiscard]] QImage ground() {
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
        backdrop_.fit(size(), devicePixelRatioF(), frame());
        const QRect boardRect = frame().toAlignedRect();
        board_->place(fitted(), boardRect, devicePixelRatioF());
        board_->setGeometry(boardRect);
    }

private:
    [[nodiscard]] Painting::BoardGeometry fitted() const {
        return Painting::fitBoard(rect().adjusted(31, 43, -38, -52), {28, 22});
    }

    Painting::Backdrop backdrop_;
    Board* board_;
    QRegion painted_;
};
