#include "Window/MenuCommands.hpp"

#include <QAction>
#include <QCoreApplication>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <utility>

#include "Session/MainThread.hpp"
#include "Session/Session.hpp"
#include "Window/FullScreen.hpp"

MenuCommands::MenuCommands(Session& session, QMenuBar& bar, QWidget& window)
    : QObject(&window), session_(session), window_(window) {
    //: Titles of menus; they and their items are worded as the desktops of the language do.
    QMenu& file = *bar.addMenu(tr("File"));
    QMenu& game = *bar.addMenu(tr("Game"));
    QMenu& help = *bar.addMenu(tr("Help"));
    newGame_ = add(file, tr("New Game"), {QKeySequence(Qt::CTRL | Qt::Key_N)},
                   [this] { session_.start(); });
    file.addSeparator();
    add(file, tr("Quit"), {QKeySequence(Qt::CTRL | Qt::Key_Q)}, [] { QCoreApplication::quit(); });

    add(game, tr("Toggle Full Screen"),
        {QKeySequence(Qt::Key_F11), QKeySequence(Qt::CTRL | Qt::META | Qt::Key_F)},
        toggleFullScreen);
    game.addSeparator();
    add(game, tr("High Scores"), {QKeySequence(Qt::CTRL | Qt::Key_L)},
        [this] { session_.openScores(); });
    pause_ =
        add(game, tr("Resume"), {QKeySequence(Qt::CTRL | Qt::Key_P)}, [this] { session_.pause(); });
    soundEffects_ = add(game, tr("Sound Effects"), {},
                        [this] { session_.setSound(soundEffects_->isChecked()); });
    soundEffects_->setCheckable(true);

    add(help, tr("Keys"), {QKeySequence(Qt::Key_F1)},
        [this] { session_.openSheet(Session::Sheet::keys); });
    add(help, tr("About Fernwick"), {}, [this] { session_.openSheet(Session::Sheet::about); });

    connect(&session_, &Session::changed, this, &MenuCommands::refresh);
    refresh();
}

QAction* MenuCommands::add(QMenu& menu, const QString& title, const QList<QKeySequence>& shortcuts,
                           std::function<void()> action) {
    QAction* item = menu.addAction(title);
    item->setShortcuts(shortcuts);
    // Holding the keys of a shortcut acts once.
    item->setAutoRepeat(false);
    // A hidden menu bar has no shortcuts; the window has them too.
    window_.addAction(item);
    connect(item, &QAction::triggered, this, [action = std::move(action)] {
        assertMainThread();
        action();
    });
    return item;
}

void MenuCommands::refresh() {
    newGame_->setEnabled(!session_.awaitingName() && session_.sheet() == Session::Sheet::none);
    pause_->setText(session_.running() ? tr("Pause") : tr("Resume"));
    soundEffects_->setChecked(session_.sound());
}
