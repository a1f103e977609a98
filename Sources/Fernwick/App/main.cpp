#include <QApplication>
#include <QLocale>
#include <cstdlib>

#include "App/ApplicationStyle.hpp"
#include "App/FernwickApp.hpp"
#include "App/Language.hpp"
#include "Desktop/DBusActivation.hpp"
#include "Desktop/Environment.hpp"
#include "Desktop/QtMessages.hpp"
#include "Desktop/SingleInstance.hpp"
#include "Desktop/UnixSignals.hpp"
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

int main(int, char* argv[]) {
    endAtOnceOnSignals();
    const std::filesystem::path settings = PreferencesFile::defaultPath();
    SingleInstance singleInstance(settings);
    if (singleInstance.place() == SingleInstance::Place::second) {
        return 0;
    }
    Desktop::prepareEnvironment();
    keepToolkitQuiet();
    // There is no command line: Qt gets the program's name only.
    int count = 1;
    QApplication application(count, argv);
    QApplication::setApplicationName(QStringLiteral("fernwick"));
    QApplication::setApplicationDisplayName(QStringLiteral("Fernwick"));
    QGuiApplication::setDesktopFileName(applicationID);

    const Language language(Language::bestFor(QLocale::system().uiLanguages()));
    applyGardenStyle();

    const UnixSignals signalsQuit;
    PreferencesFile preferences(settings);
    PulseSoundEffects soundEffects(applicationID.toUtf8());
    FernwickApp fernwick(preferences, soundEffects);
    QObject::connect(&fernwick.window(), &GameWindow::appeared, &fernwick, [&] {
        soundEffects.prepare();
        new DBusActivation(QDBusConnection::sessionBus(), applicationID, &fernwick,
                           [&fernwick](const QByteArray& token) { fernwick.bringForward(token); });
        trimHeap();
    });
    QObject::connect(&singleInstance, &SingleInstance::startedAgain, &fernwick,
                     &FernwickApp::bringForward);
    QObject::connect(&application, &QApplication::aboutToQuit, &singleInstance,
                     &SingleInstance::leave);
    singleInstance.answer();
    fernwick.show();
    return QApplication::exec();
}
