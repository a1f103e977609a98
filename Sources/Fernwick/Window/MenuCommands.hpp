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

/// The actions of the File, Game and Help menus: titles, shortcuts and when each is enabled.
class MenuCommands : public QObject {
    Q_OBJECT

public:
    /// Adds the menus to `bar`, a child of `window`. The shortcuts work while the bar is hidden,
    /// too.
    MenuCommands(Session& session, QMenuBar& bar, QWidget& window);

private:
    QAction* add(QMenu& menu, const QString& title, const QList<QKeySequence>& shortcuts,
                 std::function<void()> action);
    void refresh();

    Session& session_;
    QWidget& window_;
    QAction* newGame_ = nullptr;
    QAction* pause_ = nullptr;
    QAction* soundEffects_ = nullptr;
};
