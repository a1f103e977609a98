#pragma once

#include <QWidget>

#include "Garden/Look/Icons.hpp"
#include "Garden/Widgets/ContentDensity.hpp"

class QVBoxLayout;

namespace Garden {

class IconView;
class TrackedLabel;

/// Base class of the dialogs that lie over the screen, inside the window: an emblem, a title,
/// contents and a button that closes it, from top to bottom.
class Sheet : public QWidget {
    Q_OBJECT

public:
    /// Makes it fit into `available`, without the emblem where everything has to shrink, and
    /// returns the size that it needs, in points.
    QSize fittedTo(const QSize& available);

Q_SIGNALS:
    /// The player has pressed the button or Escape.
    void closed();

protected:
    /// A sheet that needs the room of `contents` and has its width. `title` is its accessible name,
    /// too.
    Sheet(Icon emblem, const QString& title, const ContentSize& contents, QWidget* parent);

    /// Adds a line of secondary text.
    TrackedLabel* addLine(const QString& text);
    void add(QWidget* widget, Qt::Alignment alignment = {});
    /// Adds the button. Nothing can be added after it.
    void complete();

    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    ContentSize contents_;
    double scale_ = 1;
    QVBoxLayout* column_;
    IconView* emblem_;
    ContentDensity* density_ = nullptr;
};

}  // namespace Garden
