#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QLocale>

#include "App/Language.hpp"

namespace {

std::string bestFor(const QStringList& wanted) {
    return Language::bestFor(wanted).toStdString();
}

QString newGame() {
    return QCoreApplication::translate("MenuCommands", "New Game");
}

}  // namespace

TEST(LanguageChoice, picksTheMostPreferredAvailableLanguage) {
    EXPECT_EQ(bestFor({"de", "fr"}), "de");
    EXPECT_EQ(bestFor({"nl", "fr", "de"}), "fr");
    EXPECT_EQ(bestFor({"pt-BR", "en"}), "pt_BR");
}

TEST(LanguageChoice, matchesOtherRegionalVariants) {
    EXPECT_EQ(bestFor({"de-AT"}), "de");
    EXPECT_EQ(bestFor({"fr_CA"}), "fr");
    EXPECT_EQ(bestFor({"pt-PT"}), "pt_BR");
    EXPECT_EQ(bestFor({"ar-EG"}), "ar");
    EXPECT_EQ(bestFor({"zh-Hans-SG"}), "zh_CN");
}

TEST(LanguageChoice, doesNotMatchAnotherScript) {
    EXPECT_EQ(bestFor({"zh-TW"}), "");
    EXPECT_EQ(bestFor({"zh-Hant-HK", "ja"}), "ja");
}

TEST(LanguageChoice, keepsEnglishWhereItIsPreferred) {
    EXPECT_EQ(bestFor({"en-GB", "de"}), "");
    EXPECT_EQ(bestFor({"nl", "en", "de"}), "");
}

TEST(LanguageChoice, fallsBackToEnglish) {
    EXPECT_EQ(bestFor({}), "");
    EXPECT_EQ(bestFor({"C"}), "");
    EXPECT_EQ(bestFor({"nl-NL", "eo"}), "");
    EXPECT_EQ(bestFor({"", "no such language"}), "");
}

TEST(LanguageChoice, translatesForItsLifetime) {
    {
        const Language german("de");
        EXPECT_EQ(newGame(), "Neues Spiel");
    }
    EXPECT_EQ(newGame(), "New Game");
    const Language english{QString()};
    EXPECT_EQ(newGame(), "New Game");
}

TEST(LanguageChoice, setsTheLayoutDirection) {
    const Language arabic("ar");
    EXPECT_TRUE(QGuiApplication::isRightToLeft());
    const Language turkish("tr");
    EXPECT_FALSE(QGuiApplication::isRightToLeft());
    const Language english{QString()};
    EXPECT_FALSE(QGuiApplication::isRightToLeft());
}
