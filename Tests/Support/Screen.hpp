#pragma once

#include <QAbstractButton>
#include <QAccessible>
#include <QStringList>
#include <QWidget>

/// Looks at a window as its user does: only at what is shown, by the names it goes by.
namespace Screen {

[[nodiscard]] inline QString nameOf(QWidget* widget) {
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(widget);
    return interface == nullptr ? QString() : interface->text(QAccessible::Name);
}

/// The names of everything shown inside `root`.
[[nodiscard]] inline QStringList texts(const QWidget& root) {
    QStringList shown;
    for (QWidget* widget : root.findChildren<QWidget*>()) {
        if (widget->isVisibleTo(&root) && !nameOf(widget).isEmpty()) {
            shown.append(nameOf(widget));
        }
    }
    return shown;
}

[[nodiscard]] inline bool shows(const QWidget& root, const QString& text) {
    return texts(root).contains(text);
}

/// The shown control of type `T` that goes by `name`, or none.
template <typename T>
[[nodiscard]] T* find(const QWidget& root, const QString& name) {
    for (T* widget : root.findChildren<T*>()) {
        if (widget->isVisibleTo(&root) && nameOf(widget) == name) {
            return widget;
        }
    }
    return nullptr;
}

[[nodiscard]] inline QAbstractButton* button(const QWidget& root, const QString& name) {
    return find<QAbstractButton>(root, name);
}

}  // namespace Screen
