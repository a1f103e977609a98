#pragma once

#include <QList>
#include <QStringList>
#include <QWidget>

#include "Garden/Widgets/ContentDensity.hpp"

namespace Garden {

class ChoiceButton;

/// A row of choices, one of them current. Clicking a choice emits `chosen`; the left and right
/// arrow keys focus and click its neighbour. The owner answers by calling `setCurrent`. Not a
/// `QButtonGroup`, which keeps only one of its buttons in the tab order and ignores arrow keys on a
/// button that is not checked.
class ChoiceGroup : public QWidget, public Scalable {
    Q_OBJECT

public:
    ChoiceGroup(const QStringList& choices, const QString& accessibleName,
                QWidget* parent = nullptr);

    /// Index of the current choice; -1 before the first `setCurrent`.
    [[nodiscard]] int current() const { return current_; }
    void setCurrent(int index);

    void setChoicesEnabled(bool enabled);

    void setDensity(const Density& density) override;

Q_SIGNALS:
    /// The player selected this choice, which may be the current one.
    void chosen(int index);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QList<ChoiceButton*> buttons_;
    int current_ = -1;
    double radius_;
};

}  // namespace Garden
