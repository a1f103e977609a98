#include "Garden/Look/Icons.hpp"

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QPixmapCache>
#include <QSvgRenderer>
#include <algorithm>
#include <cmath>

namespace Garden {

namespace {

// From this many logical pixels a symbol stands alone as an emblem and takes its light cut.
constexpr double emblemSize = 22;

QString fileName(Icon icon, double size) {
    switch (icon) {
        case Icon::leafFilled:
            return QStringLiteral("leaf-filled");
        case Icon::leaf:
            return QStringLiteral("leaf");
        case Icon::moon:
            return QStringLiteral("moon");
        case Icon::arrowClockwise:
            return QStringLiteral("arrow-clockwise");
        case Icon::arrowRight:
            return QStringLiteral("arrow-right");
        case Icon::trophy:
            return size < emblemSize ? QStringLiteral("trophy") : QStringLiteral("trophy-light");
        case Icon::speakerWaves:
            return QStringLiteral("speaker-waves");
        case Icon::speakerSlash:
            return QStringLiteral("speaker-slash");
        case Icon::pause:
            return QStringLiteral("pause");
        case Icon::play:
            return QStringLiteral("play");
        case Icon::windowMinimize:
            return QStringLiteral("window-minimize");
        case Icon::windowMaximize:
            return QStringLiteral("window-maximize");
        case Icon::windowRestore:
            return QStringLiteral("window-restore");
        case Icon::windowClose:
            return QStringLiteral("window-close");
    }
    Q_UNREACHABLE();
}

QPixmap render(const QString& name, int pixels) {
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer(QStringLiteral(":/icons/%1.svg").arg(name)).render(&painter);
    painter.end();
    return QPixmap::fromImage(image);
}

// Drawn opaque and tinted afterwards: where two strokes of a half-transparent symbol cross, they
// must not show.
QPixmap tinted(const QString& name, int pixels, const QColor& colour) {
    const QString key =
        QStringLiteral("%1 %2 %3").arg(name).arg(pixels).arg(colour.name(QColor::HexArgb));
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = render(name, pixels);
        QPainter painter(&pixmap);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(pixmap.rect(), colour);
        painter.end();
        QPixmapCache::insert(key, pixmap);
    }
    return pixmap;
}

}  // namespace

void paintIcon(QPainter& painter, Icon icon, const QRectF& rect, const QColor& colour) {
    const QTransform toDevice = painter.deviceTransform();
    const QRectF device = toDevice.mapRect(rect);
    const int pixels = qRound(std::min(device.width(), device.height()));
    if (pixels <= 0) {
        return;
    }
    const QString name = fileName(icon, std::min(rect.width(), rect.height()));
    const double half = pixels / 2.0;
    const QPointF corner(std::round(device.center().x() - half),
                         std::round(device.center().y() - half));
    const QRectF place = toDevice.inverted().mapRect(QRectF(corner, QSizeF(pixels, pixels)));
    painter.drawPixmap(place, tinted(name, pixels, colour), QRectF(0, 0, pixels, pixels));
}

QIcon applicationIcon() {
    QIcon icon;
    for (const int pixels : {16, 24, 32, 48, 64, 128, 256, 512}) {
        icon.addPixmap(render(QStringLiteral("fernwick"), pixels));
    }
    return icon;
}

}  // namespace Garden
