#include "Screens/Scores/NameText.hpp"

QString boundedNameText(const QString& text) {
    if (text.size() <= longestNameText) {
        return text;
    }
    const bool splitsPair = text[longestNameText - 1].isHighSurrogate();
    return text.left(splitsPair ? longestNameText - 1 : longestNameText);
}

QString listedNameText(const QString& name) {
    const QString bounded = boundedNameText(name);
    return bounded.size() == name.size() ? name : bounded + u'…';
}
