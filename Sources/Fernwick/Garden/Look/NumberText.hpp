#pragma once

#include <QString>

namespace Garden {

/// `text` with `number` in place of "%lld": plain decimal, no grouping. The translated text is
/// never used as a format, so a faulty translation can at worst show its placeholder.
[[nodiscard]] inline QString withNumber(QString text, qint64 number) {
    return text.replace(QStringLiteral("%lld"), QString::number(number));
}

}  // namespace Garden
