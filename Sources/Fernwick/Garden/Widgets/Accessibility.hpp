#pragma once

#include <QAccessible>

class QWidget;

namespace Garden {

/// Reports `widget` to assistive technology under `role`; a Dialog is reported as modal. Call it in
/// the widget's constructor. The name is the widget's accessible name, or for a button without one
/// its text.
void setAccessibleRole(QWidget& widget, QAccessible::Role role);

}  // namespace Garden
