#pragma once

#include <QAbstractButton>
#include <QAccessible>
#include <QStringList>
#include <QWidget>

/// Finds the visible widgets of a window by their accessible names.
namespace Screen {

[[nodiscard]] inline QString nameOf(QWidget* widget) {
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(widget);
    return interface == nullptr ? QString() : interface->text(QAccessible::Name);
}

/// The accessible names of all visible widgets inside `root`.
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

/// The visible widget of type `T` with this accessible name, or null.
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
