#include <QApplication>
#include <QLocale>

#include "MainWindow/ApplicationStyle.hpp"
#include "MainWindow/BusActivation.hpp"
#include "MainWindow/FernwickApp.hpp"
#include "MainWindow/FreeMemory.hpp"
#include "MainWindow/InputMethod.hpp"
#include "MainWindow/Language.hpp"
#include "MainWindow/SessionBus.hpp"
#include "MainWindow/SessionManagement.hpp"
#include "MainWindow/SilentServices.hpp"
#include "MainWindow/ToolkitMessages.hpp"
#include "MainWindow/UnixSignals.hpp"
#include "Session/ApplicationID.hpp"
#include "Session/OneGame.hpp"
#include "Session/PreferencesFile.hpp"
#include "Session/PulseSoundEffects.hpp"

int main(int, char* argv[]) {
    endAtOnceOnSignals();
    const std::filesystem::path settings = PreferencesFile::defaultPath();
    OneGame oneGame(settings);
    if (oneGame.place() == OneGame::Place::second) {
        return 0;
    }
    keepToolkitQuiet();
    leaveMissingSessionBusAlone();
    leaveSilentSessionBusAlone();
    leaveSilentInputMethodAlone();
    leaveSilentSessionManagerAlone();
    // The program takes no command line; only its own name reaches the toolkit.
    int count = 1;
    QApplication application(count, argv);
    outliveSessionManager();
    SilentServices silentServices;
    QApplication::setApplicationName(QStringLiteral("fernwick"));
    QApplication::setApplicationDisplayName(QStringLiteral("Fernwick"));
    QGuiApplication::setDesktopFileName(applicationID.toString());

    const Language language(Language::bestFor(QLocale::system().uiLanguages()));
    applyGardenStyle();

    const UnixSignals signalsQuit;
    PreferencesFile preferences(settings);
    PulseSoundEffects soundEffects;
    silentServices.leaveAlone();
    FernwickApp fernwick(preferences, soundEffects);
    QObject::connect(&fernwick.window(), &GameWindow::appeared, &fernwick, [&] {
        soundEffects.prepare();
        new BusActivation(QDBusConnection::sessionBus(), &fernwick,
                          [&fernwick](const QByteArray& token) { fernwick.bringForward(token); });
        giveBackFreeMemory();
    });
    QObject::connect(&oneGame, &OneGame::startedAgain, &fernwick, &FernwickApp::bringForward);
    QObject::connect(&application, &QApplication::aboutToQuit, &oneGame, &OneGame::leave);
    oneGame.answer();
    fernwick.show();
    return QApplication::exec();
}
