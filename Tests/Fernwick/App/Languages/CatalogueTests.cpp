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

/// Every text marked for translation in the sources, extracted with lupdate.
Keys textsOfTheSources() {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("fernwick_de.ts"));
    QProcess lupdate;
    lupdate.start(
        QStringLiteral(LUPDATE),
        {QStringLiteral("-silent"), QStringLiteral(SOURCE_FOLDER), QStringLiteral("-ts"), path});
    if (!lupdate.waitForFinished() || lupdate.exitCode() != 0) {
        throw std::runtime_error("lupdate failed");
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

/// The number of spaces before and after every part of `text` between middle dots.
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

INSTANTIATE_TEST_SUITE_P(Languages, Catalogue, ::testing::ValuesIn(allLanguages()), languageName);

}  // namespace

TEST(Catalogues, areAllEmbeddedInTheProgram) {
    QStringList files;
    for (const QString& name : allLanguages()) {
        files.append(QStringLiteral("fernwick_%1.ts").arg(name));
    }
    EXPECT_GE(files.size(), 13);
    EXPECT_EQ(files, QDir(QStringLiteral(CATALOGUE_FOLDER)).entryList(QDir::Files, QDir::Name));
}

TEST(Catalogues, containExactlyTheTextsOfTheSources) {
    const Keys wanted = textsOfTheSources();
    ASSERT_GT(wanted.size(), 60U);
    for (const QString& language : allLanguages()) {
        const Keys present = keysOf(readCatalogue(pathOf(language)));
        EXPECT_EQ(differenceOf(wanted, present), "") << "missing in " << language.toStdString();
        EXPECT_EQ(differenceOf(present, wanted), "") << "left over in " << language.toStdString();
    }
}

TEST_P(Catalogue, translatesEveryText) {
    for (const CatalogueEntry& entry : entries) {
        EXPECT_EQ(entry.state, QString()) << entry;
        EXPECT_FALSE(entry.translation.trimmed().isEmpty()) << entry;
    }
}

TEST_P(Catalogue, keepsAllPlaceholders) {
    for (const CatalogueEntry& entry : entries) {
        for (const QString& placeholder : placeholders()) {
            EXPECT_EQ(entry.translation.count(placeholder), entry.source.count(placeholder))
                << entry;
        }
        EXPECT_FALSE(withoutPlaceholders(entry.translation).contains(u'%')) << entry;
    }
}

TEST_P(Catalogue, keepsTheSpacesAroundDotsAndAtTheEnds) {
    for (const CatalogueEntry& entry : entries) {
        EXPECT_EQ(spacesAroundDots(entry.translation), spacesAroundDots(entry.source)) << entry;
    }
}

TEST_P(Catalogue, keepsUpperCaseTextsInUpperCase) {
    const QLocale locale(GetParam());
    for (const CatalogueEntry& entry : entries) {
        const QString translation = withoutPlaceholders(entry.translation);
        if (isInCapitals(withoutPlaceholders(entry.source))) {
            EXPECT_EQ(translation, locale.toUpper(translation)) << entry;
        }
    }
}

TEST_P(Catalogue, translatesEqualTextsEqually) {
    std::map<QString, QString> seen;
    for (const CatalogueEntry& entry : entries) {
        const auto [first, isNew] = seen.emplace(entry.source, entry.translation);
        EXPECT_EQ(first->second, entry.translation) << entry;
    }
}

TEST_P(Catalogue, isLoadedByTheProgram) {
    const Language language(GetParam());
    for (const CatalogueEntry& entry : entries) {
        const QString displayed = QCoreApplication::translate(entry.context.toUtf8().constData(),
                                                              entry.source.toUtf8().constData());
        EXPECT_EQ(displayed, entry.translation) << entry;
    }
}
