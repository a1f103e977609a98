#pragma once

#include <QWidget>

#include "Garden/Widgets/ContentDensity.hpp"

class QBoxLayout;
class Session;

namespace Garden {
class IconButton;
class TrackedLabel;
}  // namespace Garden

/// The bottom of the main screen: the key hints on the left, three icon buttons on the right or, in
/// a column, below them.
class HintRow : public QWidget {
    Q_OBJECT

public:
    /// How the hints are laid out.
    enum class Form {
        oneLine,
        twoLines,
        column,  ///< each hint on a line of its own, above the buttons
    };

    explicit HintRow(Session& session, QWidget* parent = nullptr);

    void arrange(Form form, const Garden::Density& density);

private:
    void refresh();

    Session& session_;
    Garden::IconButton* scores_;
    Garden::IconButton* sound_;
    Garden::IconButton* pause_;
    Garden::TrackedLabel* arrows_;
    Garden::TrackedLabel* letters_;
    Garden::TrackedLabel* commands_;
    QBoxLayout* moves_;
    QBoxLayout* lines_;
    QBoxLayout* row_;
    Garden::ContentDensity* density_ = nullptr;
};
