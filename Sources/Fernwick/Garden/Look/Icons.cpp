#include "Garden/Look/Icons.hpp"

#include <QCache>
#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>
#include <algorithm>
#include <array>
#include <cmath>

namespace Garden {

namespace {

// The SVG files of the icons, in the order of the enumeration.
constexpr std::array fileNames{"leaf-filled",
                               "leaf",
                               "moon",
                               "arrow-clockwise",
                               "arrow-right",
                               "trophy",
                               "speaker-waves",
                               "speaker-slash",
                               "pause",
                               "play",
                               "window-minimize",
                               "window-maximize",
                               "window-restore",
                               "window-close"};
static_assert(fileNames.size() == static_cast<std::size_t>(Icon::windowClose) + 1);

// From this size in points on, the trophy is an emblem and has thinner strokes.
constexpr double emblemSize = 22;

// More than are on the screen at a time, in several colours each.
constexpr int cachedImages = 128;

QString fileName(Icon icon, double size) {
    const bool isEmblem = icon == Icon::trophy && size >= emblemSize;
    return QLatin1String(isEmblem ? "trophy-light" : fileNames.at(static_cast<std::size_t>(icon)));
}

QImage render(const QString& name, int pixels) {
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer(QStringLiteral(":/icons/%1.svg").arg(name)).render(&painter);
    painter.end();
    return image;
}

// Rendered opaque and tinted afterwards, so that overlapping strokes do not show in a translucent
// colour.
QImage tinted(const QString& name, int pixels, const QColor& colour) {
    QImage image = render(name, pixels);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), colour);
    painter.end();
    return image;
}

// The last pictures that were needed. The timer of a QPixmapCache wakes an idle program.
const QImage& cached(const QString& name, int pixels, const QColor& colour) {
    static QCache<QString, QImage> images(cachedImages);
    const QString key =
        QStringLiteral("%1 %2 %3").arg(name).arg(pixels).arg(colour.name(QColor::HexArgb));
    if (!images.contains(key)) {
        images.insert(key, new QImage(tinted(name, pixels, colour)));
    }
    return *images.object(key);
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
    const QRectF target = toDevice.inverted().mapRect(QRectF(corner, QSizeF(pixels, pixels)));
    painter.drawImage(target, cached(name, pixels, colour), QRectF(0, 0, pixels, pixels));
}

QIcon applicationIcon() {
    QIcon icon;
    for (const int pixels : {16, 24, 32, 48, 64, 128, 256, 512}) {
        icon.addPixmap(QPixmap::fromImage(render(QStringLiteral("fernwick"), pixels)));
    }
    return icon;
}

}  // namespace Garden
