#include <QApplication>
#include <QLocale>
#include <QPixmapCache>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <optional>

#include "App/ApplicationStyle.hpp"
#include "App/CommandLine.hpp"
#include "App/FernwickApp.hpp"
#include "App/Language.hpp"
#include "Desktop/DBusActivation.hpp"
#include "Desktop/Environment.hpp"
#include "Desktop/QtMessages.hpp"
#include "Desktop/QuitOnSignals.hpp"
#include "Desktop/SessionRestart.hpp"
#include "Desktop/SingleInstance.hpp"
#include "Sound/PulseSoundEffects.hpp"
#include "Storage/PreferencesFile.hpp"

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

/// Names the desktop entry, the icon, the D-Bus service and the sounds.
const QString applicationID = QStringLiteral("org.fernwick.fernwick");

/// Returns free heap pages to the OS. Making the window needs several megabytes once.
void trimHeap() {
#ifdef __GLIBC__
    ::malloc_trim(0);
#endif
}

}  // namespace

int main(int argc, char* argv[]) {
    if (const std::optional<int> status = handleCommandLine(argc, argv)) {
        return *status;
    }
    Desktop::exitOnSignals();
    const std::filesystem::path settings = Storage::PreferencesFile::defaultPath();
    // Static objects are destroyed by exit() too, which Qt calls when the X server has crashed. The
    // preferences are destroyed first and wait for the disk, so that a later start reads what this
    // one has written.
    static Desktop::SingleInstance singleInstance(settings);
    if (singleInstance.role() == Desktop::SingleInstance::Role::second) {
        if (!singleInstance.bringsForward()) {
            std::fputs("fernwick: the game is already running\n", stderr);
        }
        return 0;
    }
    Desktop::filterQtMessages();
    Desktop::prepareEnvironment();
    int programNameOnly = 1;
    QApplication application(programNameOnly, argv);
    Desktop::showHeldQtMessages();
    QApplication::setApplicationName(QStringLiteral("fernwick"));
    QApplication::setApplicationDisplayName(QStringLiteral("Fernwick"));
    QApplication::setApplicationVersion(QString::fromLatin1(programVersion()));
    QGuiApplication::setDesktopFileName(applicationID);
    // Its timer wakes an idle program, and the icons have a cache of their own.
    QPixmapCache::setCacheLimit(0);
    Desktop::restartWithoutArguments();

    const Language language(Language::bestFor(QLocale::system().uiLanguages()));
    applyGardenStyle();

    const Desktop::QuitOnSignals quitOnSignals;
    static Storage::PreferencesFile preferences(settings);
    Desktop::callBeforeWaylandExit(
        [] { static_cast<void>(preferences.flush(std::chrono::seconds(5))); });
    Sound::PulseSoundEffects soundEffects(applicationID.toUtf8());
    FernwickApp fernwick(preferences, soundEffects);
    QObject::connect(&fernwick.window(), &GameWindow::appeared, &fernwick, [&] {
        soundEffects.prepare();
        const QDBusConnection bus = QDBusConnection::sessionBus();
        fernwick.keyboardFocus().followOverview(bus);
        new Desktop::DBusActivation(
            bus, applicationID, &fernwick,
            [&fernwick](const QByteArray& token) { fernwick.bringForward(token); },
            {{QStringLiteral("new-game"),
              [&fernwick](const QByteArray& token) { fernwick.startNewGame(token); }}});
        trimHeap();
    });
    QObject::connect(&singleInstance, &Desktop::SingleInstance::activationRequested, &fernwick,
                     &FernwickApp::bringForward);
    QObject::connect(&application, &QApplication::aboutToQuit, &singleInstance,
                     &Desktop::SingleInstance::stopListening);
    singleInstance.listen();
    fernwick.show();
    return QApplication::exec();
}
