#include "Screens/Main/Board.hpp"

#include <QPaintEvent>
#include <QPainter>

#include "Garden/Look/NumberText.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Widgets/Accessibility.hpp"
#include "Screens/Main/WidgetPixels.hpp"
#include "Session/MovementLetters.hpp"

Board::Board(Painting::Backdrop& backdrop, const SnakeCore::Game& game, QWidget* parent)
    : QWidget(parent), backdrop_(backdrop), game_(game) {
    Garden::setAccessibleRole(*this, QAccessible::Graphic);
    setAttribute(Qt::WA_OpaquePaintEvent);
    announceScore();
}

void Board::place(const Painting::BoardGeometry& inWindow, const QRect& widget,
                  qreal devicePixelRatio) {
    if (inWindow != inWindow_ || widget != widget_ || devicePixelRatio != scale_) {
        const Painting::PixelGrid before = grid();
        inWindow_ = inWindow;
        widget_ = widget;
        scale_ = devicePixelRatio;
        if (grid() != before) {
            resetIdlePicture();
        }
        update();
    }
}

void Board::setGame(const SnakeCore::Game& game) {
    if (game_ == game) {
        return;
    }
    const bool scored = game_.score() != game.score();
    game_ = game;
    if (scored) {
        announceScore();
    }
    resetIdlePicture();
    if (!idle_ && picture_ && picture_->grid() == grid()) {
        update(toPoints(picture_->show(game)));
    } else {
        update();
    }
}

void Board::setIdle(bool idle) {
    if (idle != idle_) {
        idle_ = idle;
        resetIdlePicture();
        update();
    }
}

void Board::setScrim(double opacity) {
    if (opacity != scrim_) {
        scrim_ = opacity;
        update();
    }
}

void Board::paintEvent(QPaintEvent* event) {
    prepareEdge();
    if (!idle_) {
        preparePicture();
    } else if (!idlePicture_) {
        idlePicture_.emplace(game_, grid());
    } else if (enlarged_.isNull() && event->rect() == rect()) {
        enlarged_ = idlePicture_->image();
    }
    QPainter painter(this);
    const WidgetPixels pixels(painter, widget_, scale_);
    const QColor scrim = Garden::withOpacity(Qt::black, scrim_);
    for (const QRect& part : event->region()) {
        const QRect area = pixels.of(part);
        // QPainter copies images faster when it clips to one rectangle than to a region.
        painter.setClipRect(area);
        if (!idle_) {
            picture_->paint(painter, area);
        } else if (enlarged_.isNull()) {
            idlePicture_->paint(painter, area);
        } else {
            painter.drawImage(area.topLeft(), enlarged_, area);
        }
        if (scrim_ > 0) {
            painter.fillRect(area, scrim);
        }
        edge_.paint(painter, area);
    }
}

Painting::PixelGrid Board::grid() const {
    const QRect pixels = WidgetPixels::inWindow(widget_, scale_);
    return {pixels.size(),
            inWindow_.frame.topLeft() * scale_ - pixels.topLeft(),
            inWindow_.cell * scale_,
            scale_,
            static_cast<int>(game_.width()),
            static_cast<int>(game_.height())};
}

QRegion Board::toPoints(const QRegion& pixels) const {
    const QPoint first = WidgetPixels::inWindow(widget_, scale_).topLeft();
    QRegion points;
    for (const QRect& part : pixels) {
        const QRectF inWindow = part.translated(first);
        points += QRectF(inWindow.topLeft() / scale_, inWindow.size() / scale_)
                      .toAlignedRect()
                      .translated(-widget_.topLeft());
    }
    return points;
}

void Board::prepareEdge() {
    if (backdrop_.revision() == edgeRevision_) {
        return;
    }
    edge_ = Painting::FrameEdge(backdrop_, WidgetPixels::inWindow(widget_, scale_));
    edgeRevision_ = backdrop_.revision();
}

void Board::resetIdlePicture() {
    idlePicture_.reset();
    enlarged_ = {};
}

void Board::preparePicture() {
    if (!picture_ || picture_->grid() != grid()) {
        picture_.emplace(grid());
    }
    // Changes nothing unless the game has changed while the board was idle.
    picture_->show(game_);
}

void Board::announceScore() {
    //: Read aloud for the picture of the board. %lld is the score; it has to stay.
    const QString label =
        withMovementLetters(tr("Snake board. Score %lld. Use arrow keys or W A S D to move."));
    setAccessibleName(Garden::withNumber(label, game_.score()));
}
