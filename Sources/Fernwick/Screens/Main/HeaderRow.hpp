#pragma once

#include <QWidget>

class QBoxLayout;
class Session;

namespace Garden {
class RollingDigits;
}

/// The top of the main screen: the title block on the left, the two score tiles on the right.
class HeaderRow : public QWidget {
    Q_OBJECT

public:
    explicit HeaderRow(Session& session, QWidget* parent = nullptr);

private:
    QBoxLayout* titleBlock();
    /// A small label above a number, which takes the label as its accessible name.
    QBoxLayout* scoreTile(const QString& label, Garden::RollingDigits* value,
                          Qt::Alignment alignment);
    void refresh();

    Session& session_;
    Garden::RollingDigits* score_;
    Garden::RollingDigits* best_;
};
