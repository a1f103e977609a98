#include "Garden/Widgets/Accessibility.hpp"

#include <QAccessibleWidget>
#include <QFocusFrame>
#include <QVariant>

#include "Garden/Widgets/QuietButton.hpp"
#include "Garden/Widgets/RollingDigits.hpp"

namespace Garden {

namespace {

constexpr const char* roleProperty = "accessibleRole";

bool isLeftOut(const QWidget& widget) {
    const QVariant role = widget.property(roleProperty);
    return role.isValid() && role.toInt() == QAccessible::NoRole;
}

// What is accessible as a child of `parent`.
QList<QWidget*> elementsOf(const QWidget& parent) {
    QList<QWidget*> elements;
    for (QObject* object : parent.children()) {
        auto* child = qobject_cast<QWidget*>(object);
        // Qt leaves frames of the focus out, too.
        if (child == nullptr || child->isWindow() || qobject_cast<QFocusFrame*>(child) != nullptr) {
            continue;
        }
        if (isLeftOut(*child)) {
            elements += elementsOf(*child);
        } else {
            elements += child;
        }
    }
    return elements;
}

class AccessibleWidget : public QAccessibleWidget {
public:
    explicit AccessibleWidget(QWidget* widget) : QAccessibleWidget(widget) {}

    [[nodiscard]] QAccessible::Role role() const override {
        return static_cast<QAccessible::Role>(widget()->property(roleProperty).toInt());
    }

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.modal = role() == QAccessible::Dialog;
        return state;
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        const QString given = QAccessibleWidget::text(kind);
        // Qt takes the tool tip as the description, which is often the name.
        return kind == QAccessible::Description && given == text(QAccessible::Name) ? QString()
                                                                                    : given;
    }

    [[nodiscard]] QAccessibleInterface* parent() const override {
        QWidget* around = widget()->parentWidget();
        while (around != nullptr && isLeftOut(*around)) {
            around = around->parentWidget();
        }
        return around == nullptr ? QAccessibleWidget::parent()
                                 : QAccessible::queryAccessibleInterface(around);
    }

    [[nodiscard]] int childCount() const override {
        return static_cast<int>(elementsOf(*widget()).size());
    }

    [[nodiscard]] QAccessibleInterface* child(int index) const override {
        return QAccessible::queryAccessibleInterface(elementsOf(*widget()).value(index));
    }

    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override {
        return static_cast<int>(
            elementsOf(*widget()).indexOf(qobject_cast<QWidget*>(child->object())));
    }
};

// Qt's own interface for buttons uses animateClick(), which delays the click by 100 ms.
class AccessibleButton : public AccessibleWidget {
public:
    explicit AccessibleButton(QuietButton* button) : AccessibleWidget(button), button_(button) {}

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = AccessibleWidget::state();
        state.checkable = button_->isCheckable();
        state.checked = button_->isChecked();
        state.pressed = button_->isDown();
        return state;
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        const QString given = AccessibleWidget::text(kind);
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

class AccessibleDigits : public AccessibleWidget {
public:
    explicit AccessibleDigits(RollingDigits* digits) : AccessibleWidget(digits), digits_(digits) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        const QString number = QString::number(digits_->value());
        switch (kind) {
            case QAccessible::Name:
                return QStringLiteral("%1: %2").arg(digits_->accessibleName(), number);
            case QAccessible::Value:
                return number;
            default:
                return AccessibleWidget::text(kind);
        }
    }

private:
    RollingDigits* digits_;
};

QAccessibleInterface* create(const QString&, QObject* object) {
    if (!object->property(roleProperty).isValid()) {
        return nullptr;
    }
    if (auto* button = qobject_cast<QuietButton*>(object)) {
        return new AccessibleButton(button);
    }
    if (auto* digits = qobject_cast<RollingDigits*>(object)) {
        return new AccessibleDigits(digits);
    }
    return new AccessibleWidget(qobject_cast<QWidget*>(object));
}

}  // namespace

QString spoken(const QString& text) {
    QStringList parts = text.split(u'·');
    for (QString& part : parts) {
        part = part.simplified();
    }
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

void setAccessibleRole(QWidget& widget, QAccessible::Role role) {
    // Qt ignores a factory that is already installed.
    QAccessible::installFactory(create);
    widget.setProperty(roleProperty, static_cast<int>(role));
}

}  // namespace Garden
