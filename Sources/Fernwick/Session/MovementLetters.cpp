#include "Session/MovementLetters.hpp"

#include <QString>

namespace {

const QString qwerty = QStringLiteral("WASD");
const QString azerty = QStringLiteral("ZQSD");

QString spaced(const QString& letters) {
    return letters.split(QString(), Qt::SkipEmptyParts).join(u' ');
}

}  // namespace

QString movementLetters(const QLocale& country) {
    switch (country.territory()) {
        case QLocale::Belgium:
            return azerty;
        case QLocale::Canada:
        case QLocale::Luxembourg:
        case QLocale::Switzerland:
            return qwerty;
        default:
            return country.language() == QLocale::French ? azerty : qwerty;
    }
}

QString withMovementLetters(const QString& text, const QLocale& country) {
    const QString letters = movementLetters(country);
    QString result = text;
    return result.replace(qwerty, letters).replace(spaced(qwerty), spaced(letters));
}
