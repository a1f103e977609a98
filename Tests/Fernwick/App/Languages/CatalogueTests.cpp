#include <gtest/gtest.h>

#include <QDir>
#include <QLocale>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <iterator>
#include <map>
#include <set>

#include "Fernwick/App/Languages/Catalogue.hpp"
#include "Fernwick/App/Languages/LanguageTest.hpp"

namespace {

using Keys = std::set<std::pair<QString, QString>>;

QString pathOf(const QString& language) {
    return QStringLiteral(CATALOGUE_FOLDER "/fernwick_%1.ts").arg(language);
}

Keys keysOf(const std::vector<CatalogueEntry>& entries) {
    Keys keys;
    for (const CatalogueEntry& entry : entries) {
        keys.emplace(entry.context, entry.source);
    }
    return keys;
}

/// Every text that the sources ask a translation of, found by the translators' own tool.
Keys textsOfTheSources() {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("fernwick_de.ts"));
    QProcess lupdate;
    lupdate.start(
        QStringLiteral(LUPDATE),
        {QStringLiteral("-silent"), QStringLiteral(SOURCE_FOLDER), QStringLiteral("-ts"), path});
    if (!lupdate.waitForFinished() || lupdate.exitCode() != 0) {
        throw std::runtime_error("the tool that reads the sources failed");
    }
    return keysOf(readCatalogue(path));
}

std::string differenceOf(const Keys& some, const Keys& others) {
    Keys difference;
    std::ranges::set_difference(some, others, std::inserter(difference, difference.end()));
    std::string text;
    for (const auto& [context, source] : difference) {
        text += context.toStdString() + ": " + source.toStdString() + '\n';
    }
    return text;
}

/// What a number or a name is put in place of.
const QStringList& placeholders() {
    static const QStringList all{QStringLiteral("%lld"), QStringLiteral("%@")};
    return all;
}

QString withoutPlaceholders(QString text) {
    for (const QString& placeholder : placeholders()) {
        text.remove(placeholder);
    }
    return text;
}

bool isInCapitals(const QString& text) {
    return std::ranges::any_of(text, [](QChar letter) { return letter.isUpper(); }) &&
           std::ranges::none_of(text, [](QChar letter) { return letter.isLower(); });
}

/// The spaces around the dots of `text`, as a row of lengths.
std::vector<qsizetype> spacesAroundDots(const QString& text) {
    std::vector<qsizetype> lengths;
    for (const QString& part : text.split(u'·')) {
        const auto isSpace = [](QChar letter) { return letter == u' '; };
        const auto leading = std::ranges::find_if_not(part, isSpace);
        lengths.push_back(std::distance(part.begin(), leading));
        lengths.push_back(
            std::distance(part.rbegin(), std::find_if_not(part.rbegin(), part.rend(), isSpace)));
    }
    return lengths;
}

class Catalogue : public ::testing::TestWithParam<QString> {
protected:
    std::vector<CatalogueEntry> entries = readCatalogue(pathOf(GetParam()));
};

INSTANTIATE_TEST_SUITE_P(Languages, Catalogue, ::testing::ValuesIn(everyLanguage()),
                         nameOfLanguage);

}  // namespace

TEST(Catalogues, areCarriedInsideTheProgramAllOfThem) {
    QStringList files;
    for (const QString& name : everyLanguage()) {
        files.append(QStringLiteral("fernwick_%1.ts").arg(name));
    }
    EXPECT_GE(files.size(), 13);
    EXPECT_EQ(files, QDir(QStringLiteral(CATALOGUE_FOLDER)).entryList(QDir::Files, QDir::Name));
}

TEST(Catalogues, holdEveryTextOfTheSourcesAndNoOther) {
    const Keys wanted = textsOfTheSources();
    ASSERT_GT(wanted.size(), 60U);
    for (const QString& language : everyLanguage()) {
        const Keys held = keysOf(readCatalogue(pathOf(language)));
        EXPECT_EQ(differenceOf(wanted, held), "") << "missing in " << language.toStdString();
        EXPECT_EQ(differenceOf(held, wanted), "") << "left over in " << language.toStdString();
    }
}

TEST_P(Catalogue, isFinished) {
    for (const CatalogueEntry& entry : entries) {
        EXPECT_EQ(entry.state, QString()) << entry;
        EXPECT_FALSE(entry.translation.trimmed().isEmpty()) << entry;
    }
}

TEST_P(Catalogue, keepsEachPlaceholderOnce) {
    for (const CatalogueEntry& entry : entries) {
        for (const QString& placeholder : placeholders()) {
            EXPECT_EQ(entry.translation.count(placeholder), entry.source.count(placeholder))
                << entry;
        }
        EXPECT_FALSE(withoutPlaceholders(entry.translation).contains(u'%')) << entry;
    }
}

TEST_P(Catalogue, keepsTheSpacesAroundDotsAndAddsNoneAtTheEnds) {
    for (const CatalogueEntry& entry : entries) {
        EXPECT_EQ(spacesAroundDots(entry.translation), spacesAroundDots(entry.source)) << entry;
    }
}

TEST_P(Catalogue, writesCapitalsAsItsLanguageDoes) {
    const QLocale locale(GetParam());
    for (const CatalogueEntry& entry : entries) {
        const QString translation = withoutPlaceholders(entry.translation);
        if (isInCapitals(withoutPlaceholders(entry.source))) {
            EXPECT_EQ(translation, locale.toUpper(translation)) << entry;
        }
    }
}

TEST_P(Catalogue, saysTheSameOfTheSameInEveryPlace) {
    std::map<QString, QString> seen;
    for (const CatalogueEntry& entry : entries) {
        const auto [known, isNew] = seen.emplace(entry.source, entry.translation);
        EXPECT_EQ(known->second, entry.translation) << entry;
    }
}

TEST_P(Catalogue, isWhatTheGameSpeaks) {
    const Language language(GetParam());
    for (const CatalogueEntry& entry : entries) {
        const QString spoken = QCoreApplication::translate(entry.context.toUtf8().constData(),
                                                           entry.source.toUtf8().constData());
        EXPECT_EQ(spoken, entry.translation) << entry;
    }
}
