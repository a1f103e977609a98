#pragma once

#include <QLocale>

/// What the keyboards of `country` show on the four keys that move the snake: "WASD" or "ZQSD".
[[nodiscard]] QString movementLetters(const QLocale& country);

/// `text` with "WASD" and "W A S D" replaced by the letters of `country`.
[[nodiscard]] QString withMovementLetters(const QString& text,
                                          const QLocale& country = QLocale::system());
