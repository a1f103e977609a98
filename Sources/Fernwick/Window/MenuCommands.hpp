#pragma once

#include <QList>
#include <QObject>
#include <functional>

class QAction;
class QKeySequence;
class QMenu;
class QMenuBar;
class QWidget;
class Session;

/// The commands of the File and Game menus: their titles, shortcuts and when each can be chosen.
class MenuCommands : public QObject {
    Q_OBJECT

public:
    /// Fills `bar`, which must live inside `window`. The shortcuts work whether or not the bar is
    /// to be seen.
    MenuCommands(Session& session, QMenuBar& bar, QWidget& window);

private:
    QAction* add(QMenu& menu, const QString& title, const QList<QKeySequence>& shortcuts,
                 std::function<void()> action);
    void fillFileMenu(QMenu& menu);
    void fillGameMenu(QMenu& menu);
    void refresh();

    Session& session_;
    QWidget& window_;
    QAction* newGame_ = nullptr;
    QAction* pause_ = nullptr;
    QAction* soundEffects_ = nullptr;
};
