#pragma once

#include <QWidget>

#include "Garden/Widgets/ContentDensity.hpp"

class QBoxLayout;
class Session;

namespace Garden {
class RollingDigits;
class TrackedLabel;
}  // namespace Garden

/// The top of the main screen: the title block on the left, the two score tiles on the right; or,
/// in a column, below it.
class HeaderRow : public QWidget {
    Q_OBJECT

public:
    explicit HeaderRow(Session& session, QWidget* parent = nullptr);

    void arrange(bool asColumn, const Garden::Density& density);

private:
    QBoxLayout* titleBlock();
    QBoxLayout* scoreTiles();
    /// A small label above a number, which takes the label as its accessible name.
    QBoxLayout* scoreTile(const QString& label, Garden::RollingDigits* value,
                          Qt::Alignment alignment);
    void refresh();

    Session& session_;
    Garden::RollingDigits* score_;
    Garden::RollingDigits* best_;
    QWidget* rule_;
    Garden::TrackedLabel* tagline_;
    QBoxLayout* row_;
    Garden::ContentDensity* density_ = nullptr;
};
