#pragma once

#include <QAccessible>

class QString;
class QWidget;

namespace Garden {

/// Reports `widget` to assistive technology under `role`; a Dialog is reported as modal. Call it in
/// the widget's constructor. The name is the widget's accessible name, or for a button without one
/// its text.
/// NoRole leaves the widget out: its children take its place among those of its parent, which needs
/// a role too.
void setAccessibleRole(QWidget& widget, QAccessible::Role role);

/// `text` for a screen reader: with commas for its dots, which are read aloud as "middle dot".
[[nodiscard]] QString spoken(const QString& text);

}  // namespace Garden
