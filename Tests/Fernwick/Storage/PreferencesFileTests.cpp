#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QUrl>
#include <limits>

#include "Fernwick/Storage/StoreNow.hpp"
#include "Storage/PreferencesFile.hpp"
#include "Support/EnvironmentVariable.hpp"
#include "Support/FileContent.hpp"
#include "Support/TemporaryFolder.hpp"

namespace fs = std::filesystem;
using namespace Qt::StringLiterals;
using Storage::PreferencesFile;

namespace {

class PreferencesFileTest : public testing::Test {
protected:
    [[nodiscard]] fs::path folder() const { return folder_.path() / "fernwick"; }
    [[nodiscard]] fs::path path() const { return folder() / "preferences.cbor"; }

private:
    TemporaryFolder folder_;
};

mode_t permissionsOf(const fs::path& path) {
    struct stat status = {};
    ::stat(path.c_str(), &status);
    return status.st_mode & 0777;
}

}  // namespace

TEST_F(PreferencesFileTest, readingCreatesNoFiles) {
    const PreferencesFile preferences(path());

    EXPECT_EQ(preferences.integer(u"best-Classic"_s), 0);
    EXPECT_EQ(preferences.boolean(u"sound"_s), std::nullopt);
    EXPECT_EQ(preferences.text(u"player-name"_s), std::nullopt);
    EXPECT_EQ(preferences.bytes(u"high-scores-v1"_s), std::nullopt);
    EXPECT_FALSE(fs::exists(folder()));
}

TEST_F(PreferencesFileTest, readsBackEveryType) {
    const QByteArray everyByte = [] {
        QByteArray bytes;
        for (int byte = 0; byte < 256; ++byte) {
            bytes.append(static_cast<char>(byte));
        }
        return bytes;
    }();
    const QString name = u"Zoë 🐍 \0 end"_s;
    {
        PreferencesFile preferences(path());
        EXPECT_TRUE(storeNow(preferences, u"off"_s, false));
        EXPECT_TRUE(storeNow(preferences, u"on"_s, true));
        EXPECT_TRUE(storeNow(preferences, u"most"_s, std::numeric_limits<qint64>::max()));
        EXPECT_TRUE(storeNow(preferences, u"least"_s, std::numeric_limits<qint64>::min()));
        EXPECT_TRUE(storeNow(preferences, u"name"_s, name));
        EXPECT_TRUE(storeNow(preferences, u"nothing"_s, QString()));
        EXPECT_TRUE(storeNow(preferences, u"bytes"_s, everyByte));
        EXPECT_TRUE(storeNow(preferences, u"no bytes"_s, QByteArray()));
    }

    const PreferencesFile preferences(path());

    EXPECT_EQ(preferences.boolean(u"off"_s), false);
    EXPECT_EQ(preferences.boolean(u"on"_s), true);
    EXPECT_EQ(preferences.integer(u"most"_s), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(preferences.integer(u"least"_s), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(preferences.text(u"name"_s), name);
    EXPECT_EQ(preferences.text(u"nothing"_s), u""_s);
    EXPECT_EQ(preferences.bytes(u"bytes"_s), everyByte);
    EXPECT_EQ(preferences.bytes(u"no bytes"_s), QByteArray(""));
}

TEST_F(PreferencesFileTest, neverReadsOneTypeAsAnother) {
    PreferencesFile preferences(path());
    const QList<QCborValue> values{true,
                                   7,
                                   u"7"_s,
                                   QByteArray("7"),
                                   QCborValue(),
                                   nullptr,
                                   QCborArray{7},
                                   QCborMap{{7, 7}},
                                   QCborValue(QUrl(u"seven:7"_s))};
    for (const QCborValue& value : values) {
        ASSERT_TRUE(storeNow(preferences, u"key"_s, value));

        EXPECT_EQ(preferences.boolean(u"key"_s).has_value(), value.isBool());
        EXPECT_EQ(preferences.integer(u"key"_s), value.isInteger() ? 7 : 0);
        EXPECT_EQ(preferences.text(u"key"_s).has_value(), value.isString());
        EXPECT_EQ(preferences.bytes(u"key"_s).has_value(), value.isByteArray());
    }
}

TEST_F(PreferencesFileTest, readsAFractionAsItsIntegerPart) {
    PreferencesFile preferences(path());
    const std::pair<double, std::int64_t> cases[]{
        {250.9, 250}, {-3.5, -3}, {1e300, 0}, {std::numeric_limits<double>::quiet_NaN(), 0}};
    for (const auto& [stored, read] : cases) {
        ASSERT_TRUE(storeNow(preferences, u"best-Swift"_s, stored));

        EXPECT_EQ(PreferencesFile(path()).integer(u"best-Swift"_s), read) << stored;
    }
}

TEST_F(PreferencesFileTest, keepsUnknownKeysOfAnyType) {
    QCborMap others{{u"later-version"_s, QCborArray{1, u"two"_s, QCborMap{{3, 4.5}}}},
                    {u"nothing"_s, nullptr},
                    {12, u"a number as the key"_s},
                    {QByteArray("bytes"), true},
                    {QCborArray{1, 2}, QCborValue(QUrl(u"tagged:value"_s))},
                    {u"sound"_s, true}};
    writeFile(path(), QCborValue(others).toCbor());

    EXPECT_TRUE(storeNow(PreferencesFile(path()), u"sound"_s, false));

    others[u"sound"_s] = false;
    EXPECT_EQ(settingsIn(path()), settingsOf(others));
}

TEST_F(PreferencesFileTest, findsAndReplacesAKeyInANonCanonicalEncoding) {
    writeFile(path(), QByteArray::fromHex("bf7f62736f63756e64fff4ff"));
    PreferencesFile preferences(path());
    EXPECT_EQ(preferences.boolean(u"sound"_s), false);

    EXPECT_TRUE(storeNow(preferences, u"sound"_s, true));

    EXPECT_EQ(settingsIn(path()), settingsOf({{u"sound"_s, true}}));
}

TEST_F(PreferencesFileTest, keepsValuesThatAnotherProcessStoredMeanwhile) {
    PreferencesFile one(path());
    PreferencesFile other(path());
    EXPECT_TRUE(storeNow(one, u"best-Swift"_s, 40));

    EXPECT_TRUE(storeNow(other, u"best-Gentle"_s, 90));

    EXPECT_EQ(settingsIn(path()), settingsOf({{u"best-Swift"_s, 40}, {u"best-Gentle"_s, 90}}));
}

TEST_F(PreferencesFileTest, createsTheFileAndItsFolderForTheUserOnly) {
    EXPECT_TRUE(storeNow(PreferencesFile(path()), u"player-name"_s, u"Ada"_s));

    EXPECT_EQ(permissionsOf(folder()), 0700u);
    EXPECT_EQ(permissionsOf(path()), 0600u);
}

TEST_F(PreferencesFileTest, leavesOnlyTheFileAndItsLockInTheFolder) {
    PreferencesFile preferences(path());
    for (int score = 0; score < 20; ++score) {
        EXPECT_TRUE(storeNow(preferences, u"best-Classic"_s, score));
    }

    EXPECT_EQ(namesIn(folder()),
              (std::vector<std::string>{"preferences.cbor", "preferences.cbor.lock"}));
}

TEST_F(PreferencesFileTest, keepsSettingsInMemoryWithoutAPath) {
    PreferencesFile preferences{fs::path()};

    EXPECT_FALSE(storeNow(preferences, u"sound"_s, false));

    EXPECT_EQ(preferences.boolean(u"sound"_s), false);
}

TEST(PreferencesFilePath, isInTheConfigurationFolder) {
    const EnvironmentVariable home("HOME", "/home/ada");
    const EnvironmentVariable configuration("XDG_CONFIG_HOME", "/settings");

    EXPECT_EQ(PreferencesFile::defaultPath(), "/settings/fernwick/preferences.cbor");
}

TEST(PreferencesFilePath, isInTheHomeFolderUnlessTheConfigurationFolderIsAbsolute) {
    const EnvironmentVariable home("HOME", "/home/ada");
    for (const char* ignored : {static_cast<const char*>(nullptr), "", "settings", "./settings"}) {
        const EnvironmentVariable configuration("XDG_CONFIG_HOME", ignored);

        EXPECT_EQ(PreferencesFile::defaultPath(), "/home/ada/.config/fernwick/preferences.cbor");
    }
}

TEST(PreferencesFilePath, isAbsoluteOrEmptyWithoutAHomeVariable) {
    const EnvironmentVariable configuration("XDG_CONFIG_HOME", nullptr);
    const EnvironmentVariable home("HOME", nullptr);

    const fs::path path = PreferencesFile::defaultPath();

    EXPECT_TRUE(path.empty() || path.is_absolute()) << path;
}
