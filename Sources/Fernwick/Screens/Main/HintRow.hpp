#pragma once

#include <QWidget>

class Session;

namespace Garden {
class IconButton;
}

/// The bottom of the main screen: the key hints on the left, three icon buttons on the right.
class HintRow : public QWidget {
    Q_OBJECT

public:
    explicit HintRow(Session& session, QWidget* parent = nullptr);

private:
    void refresh();

    Session& session_;
    Garden::IconButton* scores_;
    Garden::IconButton* sound_;
    Garden::IconButton* pause_;
};
