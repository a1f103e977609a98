#include <QApplication>
#include <QLocale>

#include "MainWindow/ApplicationStyle.hpp"
#include "MainWindow/FernwickApp.hpp"
#include "MainWindow/Language.hpp"
#include "MainWindow/SessionBus.hpp"
#include "MainWindow/UnixSignals.hpp"
#include "Session/PreferencesFile.hpp"
#include "Session/PulseSoundEffects.hpp"

int main(int, char* argv[]) {
    leaveMissingSessionBusAlone();
    // The program takes no command line; only its own name reaches the toolkit.
    int count = 1;
    QApplication application(count, argv);
    QApplication::setApplicationName(QStringLiteral("fernwick"));
    QApplication::setApplicationDisplayName(QStringLiteral("Fernwick"));
    QGuiApplication::setDesktopFileName(QStringLiteral("fernwick"));

    const Language language(Language::bestFor(QLocale::system().uiLanguages()));
    applyGardenStyle();

    const UnixSignals signalsQuit;
    PreferencesFile preferences(PreferencesFile::defaultPath());
    PulseSoundEffects soundEffects;
    FernwickApp fernwick(preferences, soundEffects);
    QObject::connect(&fernwick.window(), &GameWindow::appeared, &fernwick,
                     [&soundEffects] { soundEffects.prepare(); });
    fernwick.show();
    return QApplication::exec();
}
