// Pictures FOLDER: writes pictures of the board and of the ground as files, which are the same on
// every processor.

#include <QGuiApplication>
#include <QImage>
#include <cstdlib>
#include <initializer_list>

#include "Fernwick/Painting/Games.hpp"
#include "Fernwick/Painting/Grids.hpp"
#include "Painting/Board/BoardPicture.hpp"
#include "Painting/Board/IdlePicture.hpp"
#include "Painting/Ground/Backdrop.hpp"

namespace {

QString folder;

void write(const QString& name, const QImage& image) {
    if (!image.save(folder + u'/' + name + QStringLiteral(".png"))) {
        qFatal("cannot write %s", qUtf8Printable(name));
    }
}

void writeBoards(double scale) {
    const Painting::PixelGrid grid = Grids::usual(13.37, scale);
    for (const std::size_t length : std::initializer_list<std::size_t>{4, 60, 616}) {
        const SnakeCore::Game game = Games::ofLength(length);
        const QString suffix = QStringLiteral("-%1-%2").arg(length).arg(scale);
        Painting::BoardPicture board(grid);
        board.show(game);
        write(QStringLiteral("board") + suffix, board.image());
        write(QStringLiteral("idle") + suffix, Painting::IdlePicture(game, grid).image());
    }
}

void writeGround(double scale) {
    Painting::Backdrop ground;
    ground.fit({1400, 900}, scale, {500.5, 200, 560, 440});
    write(QStringLiteral("ground-%1").arg(scale), ground.image(ground.bounds()));
}

}  // namespace

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    if (argc != 2) {
        return EXIT_FAILURE;
    }
    folder = QString::fromLocal8Bit(argv[1]);
    for (const double scale : {1.0, 1.5, 2.0}) {
        writeBoards(scale);
        writeGround(scale);
    }
}
