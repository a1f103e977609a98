#pragma once

#include <QString>

namespace Garden {

/// `text` with "%lld" replaced by `number` in decimal, without digit grouping. A translated text is
/// never used as a printf format, so a faulty translation can at worst show its placeholder.
[[nodiscard]] inline QString withNumber(QString text, qint64 number) {
    return text.replace(QStringLiteral("%lld"), QString::number(number));
}

}  // namespace Garden
