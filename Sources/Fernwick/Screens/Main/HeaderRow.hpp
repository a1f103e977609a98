#pragma once

#include <QWidget>

class QBoxLayout;
class Session;

namespace Garden {
class RollingDigits;
}

/// The top of the main screen: the title block at the left, the two score tiles at the right.
class HeaderRow : public QWidget {
    Q_OBJECT

public:
    explicit HeaderRow(Session& session, QWidget* parent = nullptr);

private:
    QBoxLayout* titleBlock();
    /// A small label above a value that rolls, whose accessible name is the label.
    QBoxLayout* scoreTile(const QString& label, Garden::RollingDigits* value,
                          Qt::Alignment alignment);
    void refresh();

    Session& session_;
    Garden::RollingDigits* score_;
    Garden::RollingDigits* best_;
};
