#include "Screens/Main/Board.hpp"

#include <QPaintEvent>
#include <QPainter>

#include "Garden/Look/NumberText.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Widgets/Accessibility.hpp"
#include "Painting/Board/IdlePicture.hpp"
#include "Screens/Main/WidgetPixels.hpp"

namespace {

/// Sigma of the blur while the snake does not move, in points.
constexpr double idleSigma = 5;

}  // namespace

Board::Board(Painting::Backdrop& backdrop, const SnakeCore::Game& game, QWidget* parent)
    : QWidget(parent), backdrop_(backdrop), game_(game) {
    Garden::setAccessibleRole(*this, QAccessible::Graphic);
    setAttribute(Qt::WA_OpaquePaintEvent);
    announceScore();
}

void Board::place(const Painting::BoardGeometry& inWindow, const QRect& widget,
                  qreal devicePixelRatio) {
    if (inWindow != inWindow_ || widget != widget_ || devicePixelRatio != scale_) {
        inWindow_ = inWindow;
        widget_ = widget;
        scale_ = devicePixelRatio;
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
    idlePicture_ = {};
    if (picture_ && picture_->grid() == grid()) {
        const QRegion changed = toPoints(picture_->show(game));
        idle_ ? update() : update(changed);
    } else {
        update();
    }
}

void Board::setIdle(bool idle) {
    if (idle != idle_) {
        idle_ = idle;
        idlePicture_ = {};
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
    preparePicture();
    QPainter painter(this);
    const WidgetPixels pixels(painter, widget_, scale_);
    const QColor scrim = Garden::withOpacity(Qt::black, scrim_);
    for (const QRect& part : event->region()) {
        const QRect area = pixels.of(part);
        // QPainter copies images faster when it clips to one rectangle than to a region.
        painter.setClipRect(area);
        if (idle_) {
            painter.drawImage(area.topLeft(), idlePicture_, area);
        } else {
            picture_->paint(painter, area);
        }
        if (scrim_ > 0) {
            painter.fillRect(area, scrim);
        }
        edge_.paint(painter, area);
    }
}

Painting::PixelGrid Board::grid() const {
    const QRectF& frame = inWindow_.frame;
    const QRect pixels = WidgetPixels::inWindow(widget_, scale_);
    return {pixels.size(),
            frame.topLeft() * scale_ - pixels.topLeft(),
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
    const QRectF& frame = inWindow_.frame;
    const QRect pixels = WidgetPixels::inWindow(widget_, scale_);
    const QRectF inPicture(frame.topLeft() * scale_ - pixels.topLeft(), frame.size() * scale_);
    edge_ = Painting::FrameEdge(backdrop_, pixels, Painting::FrameShape(inPicture, scale_));
    edgeRevision_ = backdrop_.revision();
}

void Board::preparePicture() {
    if (!picture_ || picture_->grid() != grid()) {
        picture_.emplace(grid());
        picture_->show(game_);
        idlePicture_ = {};
    }
    if (idle_ && idlePicture_.isNull()) {
        idlePicture_ = Painting::idlePicture(picture_->image(), idleSigma * scale_);
    }
}

void Board::announceScore() {
    //: Read aloud for the picture of the board. %lld is the score; it has to stay.
    const QString label = tr("Snake board. Score %lld. Use arrow keys or W A S D to move.");
    setAccessibleName(Garden::withNumber(label, game_.score()));
}
