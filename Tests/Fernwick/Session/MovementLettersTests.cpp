#include <gtest/gtest.h>

#include <QLocale>

#include "Session/MovementLetters.hpp"

TEST(MovementLetters, areThoseOfAzertyWhereKeyboardsHaveThem) {
    for (const char* country : {"fr_FR", "fr_BE", "nl_BE", "fr_SN"}) {
        EXPECT_EQ(movementLetters(QLocale(QString::fromLatin1(country))), "ZQSD") << country;
    }
}

TEST(MovementLetters, areThoseOfQwertyElsewhere) {
    for (const char* country : {"C", "en_US", "de_DE", "nl_NL", "fr_CA", "fr_CH", "fr_LU"}) {
        EXPECT_EQ(movementLetters(QLocale(QString::fromLatin1(country))), "WASD") << country;
    }
}

TEST(MovementLetters, replaceThoseOfATextInEitherSpelling) {
    EXPECT_EQ(withMovementLetters("or WASD, W A S D", QLocale("fr_FR")), "or ZQSD, Z Q S D");
}
