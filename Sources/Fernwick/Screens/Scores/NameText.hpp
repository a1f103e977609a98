#pragma once

#include <QString>

/// The maximum length of a name on the screen, in UTF-16 units: `HighScores::longestName`
/// characters of 32 units. The longest emoji have 15. The number of characters does not bound the
/// length by itself, as any number of joined emoji or combining marks is one character, and Qt's
/// time to lay out a text grows faster than its length.
inline constexpr qsizetype longestNameText = 768;

/// The beginning of `text` that is at most `longestNameText` long and does not end within a
/// surrogate pair.
[[nodiscard]] QString boundedNameText(const QString& text);

/// `name` for a line of a list: bounded, and with an ellipsis if that has shortened it.
[[nodiscard]] QString listedNameText(const QString& name);
