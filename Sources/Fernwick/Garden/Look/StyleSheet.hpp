#pragma once

#include <QColor>
#include <QString>

namespace Garden {

/// `colour` as style sheets write it, opacity included.
[[nodiscard]] inline QString css(const QColor& colour) {
    return QStringLiteral("rgba(%1,%2,%3,%4)")
        .arg(colour.red())
        .arg(colour.green())
        .arg(colour.blue())
        .arg(static_cast<double>(colour.alphaF()));
}

}  // namespace Garden
