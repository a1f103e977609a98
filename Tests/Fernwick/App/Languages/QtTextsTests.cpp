#include <QAccessible>
#include <QMenu>
#include <QMenuBar>
#include <memory>

#include "Fernwick/App/Languages/LanguageTest.hpp"
#include "Screens/Scores/NameField.hpp"

namespace {

/// The item titles of the context menu of a name field, each with its shortcut after a tab.
QStringList titlesOfFieldMenu() {
    NameField field;
    field.setText("Ada");
    const std::unique_ptr<QMenu> menu(field.createStandardContextMenu());
    QStringList titles;
    for (const QAction* action : menu->actions()) {
        if (!action->isSeparator()) {
            titles.append(action->text());
        }
    }
    return titles;
}

class QtTexts : public ::testing::TestWithParam<QString> {};

INSTANTIATE_TEST_SUITE_P(Languages, QtTexts, ::testing::ValuesIn(allLanguages()), languageName);

/// The name that shortcuts show for the key with the logo.
QString logoKey() {
    return QKeySequence(Qt::META | Qt::Key_F)
        .toString(QKeySequence::NativeText)
        .section(u'+', 0, 0);
}

}  // namespace

TEST_P(QtTexts, areTranslatedInTheMenuOfTheNameField) {
    const auto titles = [] {
        QStringList all = titlesOfFieldMenu();
        for (QString& title : all) {
            title = title.section(u'\t', 0, 0);
        }
        return all;
    };
    const QStringList english = titles();
    ASSERT_EQ(english.size(), 7);
    const Language language(GetParam());

    const QStringList translated = titles();

    ASSERT_EQ(translated.size(), english.size());
    for (const QString& title : translated) {
        EXPECT_FALSE(english.contains(title)) << title.toStdString();
    }
}

TEST_P(QtTexts, areTranslatedInTheAccessibleActionOfAButton) {
    const QString english = QAccessibleActionInterface::tr("Press");
    const Language language(GetParam());
    const QString press = QAccessibleActionInterface::pressAction();

    const QString translated = QAccessibleActionInterface::tr(press.toUtf8().constData());

    EXPECT_NE(translated, english);
}

TEST_P(QtTexts, callTheLogoKeySuper) {
    const Language language(GetParam());

    EXPECT_EQ(logoKey(), "Super");
}

TEST(QtTextsInEnglish, callTheLogoKeySuper) {
    const Language english("");

    EXPECT_EQ(logoKey(), "Super");
}

TEST(QtTextsInGerman, useGermanKeyNames) {
    const Language german("de");

    EXPECT_EQ(QKeySequence(Qt::CTRL | Qt::Key_N).toString(QKeySequence::NativeText), "Strg+N");
    EXPECT_EQ(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z).toString(QKeySequence::NativeText),
              "Strg+Umschalt+Z");
    EXPECT_TRUE(titlesOfFieldMenu().first().endsWith("\tStrg+Z"));
}
