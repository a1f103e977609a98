#include "MainWindow/Board/Board.hpp"

#include <QAccessible>
#include <QPainter>
#include <QPainterPath>

#include "MainWindow/Board/Backdrop.hpp"
#include "MainWindow/Board/PlainPainter.hpp"

namespace {

constexpr double cornerRadius = 22;
constexpr float strokeOpacity = 0.16F;
constexpr double strokeWidth = 1;
constexpr double idleOpacity = 0.4;
constexpr double idleBlur = 5;

}  // namespace

Board::Board(Backdrop& backdrop, QWidget* parent) : QWidget(parent), backdrop_(backdrop) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

BoardGeometry Board::fit(const QRectF& space) {
    return fitBoard(space);
}

void Board::setGame(const SnakeCore::Game& game) {
    if (game_ == game) {
        return;
    }
    const bool scored = !game_ || game_->score() != game.score();
    game_ = game;
    if (scored) {
        announceScore();
    }
    update();
}

void Board::setIdle(bool idle) {
    if (idle != idle_) {
        idle_ = idle;
        update();
    }
}

void Board::setScrim(double opacity) {
    if (opacity != scrim_) {
        scrim_ = opacity;
        update();
    }
}

void Board::paintEvent(QPaintEvent*) {
    const QRectF frame = frameHere();
    const QPoint place = mapTo(window(), QPoint());
    QPainter painter(this);
    painter.drawImage(
        -place, backdrop_.image(window()->size(), devicePixelRatioF(), frame.translated(place)));
    QPainterPath shape;
    shape.addRoundedRect(frame, cornerRadius, cornerRadius);
    painter.setRenderHint(QPainter::Antialiasing);
    if (game_) {
        const QSize pixels = (QSizeF(size()) * devicePixelRatioF()).toSize();
        QImage picture = paintPlainly(*game_, pixels, fit(parentWidget()->rect()).cell,
                                      frame.topLeft(), devicePixelRatioF());
        if (idle_) {
            blurPlainly(picture, idleBlur * devicePixelRatioF());
            painter.setOpacity(idleOpacity);
        }
        painter.setClipPath(shape);
        painter.drawImage(QPointF(), picture);
        painter.setClipping(false);
        painter.setOpacity(1);
    }
    painter.fillPath(shape, QColor::fromRgbF(0, 0, 0, static_cast<float>(scrim_)));
    painter.setPen(QPen(QColor::fromRgbF(0.65F, 0.94F, 0.64F, strokeOpacity), strokeWidth));
    painter.drawPath(shape);
}

QRectF Board::frameHere() const {
    return fit(parentWidget()->rect()).frame.translated(-pos());
}

void Board::announceScore() {
    QString label = tr("Snake board. Score %lld. Use arrow keys or W A S D to move.");
    label.replace(QStringLiteral("%lld"), QString::number(game_->score()));
    setAccessibleName(label);
}
