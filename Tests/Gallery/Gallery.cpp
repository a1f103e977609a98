#include <QApplication>
#include <QDir>
#include <QPainter>
#include <cstdio>

#include "App/ApplicationStyle.hpp"
#include "App/CommandLine.hpp"
#include "App/Language.hpp"
#include "Gallery/Scenes.hpp"
#include "Garden/Look/TextScale.hpp"
#include "Session/Session.hpp"
#include "Session/SoundEffects.hpp"
#include "Storage/PreferencesFile.hpp"
#include "Support/OffscreenScreens.hpp"
#include "Support/StillStyle.hpp"
#include "Window/FullScreenHint.hpp"
#include "Window/GameWindow.hpp"

// Renders every scene at one size into a folder, and a contact sheet of all scenes.

namespace {

constexpr int thumbnailWidth = 640;
constexpr int sheetColumns = 3;
constexpr QSize largeScreen(3840, 2160);

class NoSound : public SoundEffects {
public:
    void play(SoundEffect) override {}
};

QImage render(const Scene& scene, const QSize& size, Qt::WindowState state) {
    Storage::PreferencesFile inMemory{std::filesystem::path()};
    NoSound sounds;
    scene.store(inMemory);
    Session session(inMemory, sounds, [&](SnakeCore::Game& game) { game = scene.game(); });
    scene.arrange(session);
    GameWindow window(session);
    window.show();
    QCoreApplication::processEvents();
    window.setWindowState(state);
    QCoreApplication::processEvents();
    if (state == Qt::WindowNoState) {
        window.resize(size);
    }
    QCoreApplication::processEvents();
    FullScreenHint::showIfNew(session, window);
    return window.grab().toImage();
}

void addToSheet(QPainter& sheet, const QImage& picture, int index, const QSize& thumbnail) {
    const QPoint position(index % sheetColumns * thumbnail.width(),
                          index / sheetColumns * thumbnail.height());
    sheet.drawImage(QRect(position, thumbnail),
                    picture.scaled(thumbnail, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

}  // namespace

int main(int argc, char* argv[]) {
    if (argc < 5 || argc > 7) {
        std::fputs(
            "usage: fernwick-gallery FOLDER WIDTH HEIGHT window|tile|full-screen"
            " [LANGUAGE [TEXT_SCALE]]\n",
            stderr);
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    const QSize size(QByteArray(argv[2]).toInt(), QByteArray(argv[3]).toInt());
    const QByteArray kind(argv[4]);
    const Qt::WindowState state = kind == "full-screen" ? Qt::WindowFullScreen
                                  : kind == "tile"      ? Qt::WindowMaximized
                                                        : Qt::WindowNoState;
    const OffscreenScreens screen({state == Qt::WindowNoState ? largeScreen : size});
    const QApplication application(argc, argv);
    // A locale name such as "de" or "pt_BR"; English by default.
    const QString wanted = argc >= 6 ? QString::fromLocal8Bit(argv[5]) : QString();
    const Language language(Language::bestFor({wanted}));
    applyGardenStyle();
    if (argc == 7) {
        Garden::TextScale::shared().setFactor(QByteArray(argv[6]).toDouble());
    }
    const StillStyle still;
    QApplication::setApplicationVersion(QString::fromLatin1(programVersion()));
    if (!QDir().mkpath(folder.path())) {
        std::fputs("cannot create the folder\n", stderr);
        return 1;
    }

    const std::vector<Scene> scenes = galleryScenes();
    const int rows = (static_cast<int>(scenes.size()) + sheetColumns - 1) / sheetColumns;
    const QSize thumbnail(thumbnailWidth, thumbnailWidth * size.height() / size.width());
    QImage sheet(sheetColumns * thumbnail.width(), rows * thumbnail.height(), QImage::Format_RGB32);
    sheet.fill(Qt::black);
    QPainter painter(&sheet);
    for (int index = 0; index < static_cast<int>(scenes.size()); ++index) {
        const Scene& scene = scenes[static_cast<std::size_t>(index)];
        const QImage picture = render(scene, size, state);
        if (!picture.save(folder.filePath(scene.name + QStringLiteral(".png")))) {
            std::fputs("cannot save a picture\n", stderr);
            return 1;
        }
        addToSheet(painter, picture, index, thumbnail);
    }
    painter.end();
    return sheet.save(folder.filePath(QStringLiteral("contact-sheet.png"))) ? 0 : 1;
}
