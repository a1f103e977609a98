#include "Garden/Widgets/Accessibility.hpp"

#include <QAccessible>
#include <QAccessibleWidget>

#include "Garden/Widgets/ChoiceButton.hpp"
#include "Garden/Widgets/ChoiceGroup.hpp"
#include "Garden/Widgets/IconView.hpp"
#include "Garden/Widgets/RollingDigits.hpp"
#include "Garden/Widgets/TrackedLabel.hpp"

namespace Garden {

namespace {

class AccessibleButton : public QAccessibleWidget {
public:
    AccessibleButton(QuietButton* button, QAccessible::Role role)
        : QAccessibleWidget(button, role), button_(button) {}

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = button_->isCheckable();
        state.checked = button_->isChecked();
        state.pressed = button_->isDown();
        return state;
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        const QString given = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && given.isEmpty() ? button_->text() : given;
    }

    [[nodiscard]] QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (button_->isEnabled()) {
            names.prepend(pressAction());
        }
        return names;
    }

    void doAction(const QString& action) override {
        if (action == pressAction()) {
            button_->click();
        } else {
            QAccessibleWidget::doAction(action);
        }
    }

private:
    QuietButton* button_;
};

class AccessibleDigits : public QAccessibleWidget {
public:
    explicit AccessibleDigits(RollingDigits* digits)
        : QAccessibleWidget(digits, QAccessible::StaticText), digits_(digits) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        const QString number = QString::number(digits_->value());
        switch (kind) {
            case QAccessible::Name:
                return QStringLiteral("%1: %2").arg(digits_->accessibleName(), number);
            case QAccessible::Value:
                return number;
            default:
                return QAccessibleWidget::text(kind);
        }
    }

private:
    RollingDigits* digits_;
};

QAccessibleInterface* create(const QString&, QObject* object) {
    if (auto* choice = qobject_cast<ChoiceButton*>(object)) {
        return new AccessibleButton(choice, QAccessible::RadioButton);
    }
    if (auto* button = qobject_cast<QuietButton*>(object)) {
        return new AccessibleButton(button, QAccessible::PushButton);
    }
    if (auto* digits = qobject_cast<RollingDigits*>(object)) {
        return new AccessibleDigits(digits);
    }
    if (auto* label = qobject_cast<TrackedLabel*>(object)) {
        return new QAccessibleWidget(label, QAccessible::StaticText);
    }
    if (auto* group = qobject_cast<ChoiceGroup*>(object)) {
        return new QAccessibleWidget(group, QAccessible::Grouping);
    }
    if (auto* view = qobject_cast<IconView*>(object)) {
        return new QAccessibleWidget(view, QAccessible::Graphic);
    }
    return nullptr;
}

}  // namespace

void installAccessibility() {
    // Installing the same factory again is free: Qt keeps each one once.
    QAccessible::installFactory(create);
}

}  // namespace Garden
