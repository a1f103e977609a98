#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdlib>

/// render-icon DRAWING SIZE PICTURE: draws an SVG into a square PNG with sides of SIZE pixels.
int main(int count, char* arguments[]) {
    constexpr int expectedCount = 4;
    if (count != expectedCount) {
        return EXIT_FAILURE;
    }
    QSvgRenderer drawing(QString::fromLocal8Bit(arguments[1]));
    const int size = QByteArray(arguments[2]).toInt();
    QImage picture(size, size, QImage::Format_ARGB32_Premultiplied);
    if (!drawing.isValid() || picture.isNull()) {
        return EXIT_FAILURE;
    }
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    drawing.render(&painter);
    painter.end();
    return picture.save(QString::fromLocal8Bit(arguments[3]), "PNG") ? EXIT_SUCCESS : EXIT_FAILURE;
}
