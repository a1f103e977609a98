#pragma once

#include <QBoxLayout>

namespace Garden {

/// A `QHBoxLayout` or `QVBoxLayout` on `owner` with the same margin on all sides, in points.
template <typename Layout>
[[nodiscard]] Layout* layOut(QWidget* owner, int spacing, int margin = 0) {
    auto* layout = new Layout(owner);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(spacing);
    return layout;
}

}  // namespace Garden
