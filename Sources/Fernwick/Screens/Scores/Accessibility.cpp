#include "Screens/Scores/Accessibility.hpp"

#include <QAccessibleWidget>

#include "Screens/Scores/HighScoresView.hpp"
#include "Screens/Scores/ScoreRow.hpp"
#include "Screens/Scores/ScoreRows.hpp"

namespace {

/// A modal dialog.
class AccessibleSheet : public QAccessibleWidget {
public:
    explicit AccessibleSheet(HighScoresView* sheet)
        : QAccessibleWidget(sheet, QAccessible::Dialog) {}

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.modal = true;
        return state;
    }
};

QAccessibleInterface* create(const QString&, QObject* object) {
    if (auto* sheet = qobject_cast<HighScoresView*>(object)) {
        return new AccessibleSheet(sheet);
    }
    if (auto* rows = qobject_cast<ScoreRows*>(object)) {
        return new QAccessibleWidget(rows, QAccessible::List);
    }
    if (auto* row = qobject_cast<ScoreRow*>(object)) {
        return new QAccessibleWidget(row, QAccessible::ListItem);
    }
    return nullptr;
}

}  // namespace

void installScoreAccessibility() {
    // Qt ignores a factory that is installed already.
    QAccessible::installFactory(create);
}
