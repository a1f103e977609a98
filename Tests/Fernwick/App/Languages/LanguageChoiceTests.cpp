#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QLocale>

#include "App/Language.hpp"

namespace {

std::string bestFor(const QStringList& wanted) {
    return Language::bestFor(wanted).toStdString();
}

QString spoken() {
    return QCoreApplication::translate("MenuCommands", "New Game");
}

}  // namespace

TEST(LanguageChoice, takesTheDearestLanguageThatTheGameSpeaks) {
    EXPECT_EQ(bestFor({"de", "fr"}), "de");
    EXPECT_EQ(bestFor({"nl", "fr", "de"}), "fr");
    EXPECT_EQ(bestFor({"pt-BR", "en"}), "pt_BR");
}

TEST(LanguageChoice, understandsTheLanguageOfAnotherCountry) {
    EXPECT_EQ(bestFor({"de-AT"}), "de");
    EXPECT_EQ(bestFor({"fr_CA"}), "fr");
    EXPECT_EQ(bestFor({"pt-PT"}), "pt_BR");
    EXPECT_EQ(bestFor({"ar-EG"}), "ar");
    EXPECT_EQ(bestFor({"zh-Hans-SG"}), "zh_CN");
}

TEST(LanguageChoice, doesNotOfferAnotherScript) {
    EXPECT_EQ(bestFor({"zh-TW"}), "");
    EXPECT_EQ(bestFor({"zh-Hant-HK", "ja"}), "ja");
}

TEST(LanguageChoice, staysWithEnglishWhereEnglishIsDearer) {
    EXPECT_EQ(bestFor({"en-GB", "de"}), "");
    EXPECT_EQ(bestFor({"nl", "en", "de"}), "");
}

TEST(LanguageChoice, fallsBackOnEnglish) {
    EXPECT_EQ(bestFor({}), "");
    EXPECT_EQ(bestFor({"C"}), "");
    EXPECT_EQ(bestFor({"nl-NL", "eo"}), "");
    EXPECT_EQ(bestFor({"", "no such language"}), "");
}

TEST(LanguageChoice, speaksWhileItLives) {
    {
        const Language german("de");
        EXPECT_EQ(spoken(), "Neues Spiel");
    }
    EXPECT_EQ(spoken(), "New Game");
    const Language english{QString()};
    EXPECT_EQ(spoken(), "New Game");
}

TEST(LanguageChoice, tellsTheSideThatReadingBeginsAt) {
    const Language arabic("ar");
    EXPECT_TRUE(QGuiApplication::isRightToLeft());
    const Language turkish("tr");
    EXPECT_FALSE(QGuiApplication::isRightToLeft());
    const Language english{QString()};
    EXPECT_FALSE(QGuiApplication::isRightToLeft());
}
