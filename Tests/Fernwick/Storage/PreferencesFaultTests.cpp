#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <memory>

#include "Fernwick/Storage/StoreNow.hpp"
#include "Storage/PreferencesFile.hpp"
#include "Support/AsOrdinaryUser.hpp"
#include "Support/FileContent.hpp"
#include "Support/LogCapture.hpp"
#include "Support/TemporaryFolder.hpp"

namespace fs = std::filesystem;
using namespace Qt::StringLiterals;
using Storage::PreferencesFile;

namespace {

class PreferencesFault : public testing::Test {
protected:
    PreferencesFault() { fs::create_directories(folder()); }

    [[nodiscard]] fs::path folder() const { return folder_.path() / "fernwick"; }
    [[nodiscard]] fs::path path() const { return folder() / "preferences.cbor"; }
    [[nodiscard]] fs::path aside() const { return folder() / "preferences.cbor.unreadable-1"; }

private:
    TemporaryFolder folder_;
};

const Settings soundOff = settingsOf({{u"sound"_s, false}});

/// While this object exists, writing past `size` bytes of a file fails, as on a full disk.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t size) {
        ::getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limited{size, before_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limited);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    ~FileSizeLimit() { ::setrlimit(RLIMIT_FSIZE, &before_); }

private:
    rlimit before_{};
};

}  // namespace

class UnreadableContent : public PreferencesFault,
                          public testing::WithParamInterface<QByteArray> {};

TEST_P(UnreadableContent, readsAsNoSettingsAndIsSetAsideByTheNextStore) {
    writeFile(path(), GetParam());
    PreferencesFile preferences(path());
    EXPECT_EQ(preferences.boolean(u"sound"_s), std::nullopt);
    EXPECT_EQ(readFile(path()), GetParam());

    EXPECT_TRUE(storeNow(preferences, u"sound"_s, false));

    EXPECT_EQ(settingsIn(path()), soundOff);
    EXPECT_EQ(readFile(aside()), GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    PreferencesFault, UnreadableContent,
    testing::Values(QByteArray(""), QByteArray("[General]\nsound=false\n"),
                    QByteArray::fromHex("a165736f756e64f400"),              // a trailing byte
                    QByteArray::fromHex("a165736f756e64"),                  // a key without a value
                    QByteArray::fromHex("a265736f756e64f4"),                // one entry of two
                    QByteArray::fromHex("bf65736f756e64f4"),                // no break byte
                    QByteArray::fromHex("a265736f756e64f465736f756e64f5"),  // a duplicate key
                    QByteArray::fromHex("8165736f756e64"),                  // an array
                    QByteArray::fromHex("a161ff5b7fffffffffffffff"),  // a length larger than memory
                    QByteArray("\xa1\x61x", 3) + QByteArray(100000, '\x81')));  // too deeply nested

TEST_F(PreferencesFault, setsAFileAsideThatIsTooLarge) {
    writeFile(path(), "");
    fs::resize_file(path(), 10'000'000'000);

    EXPECT_TRUE(storeNow(PreferencesFile(path()), u"sound"_s, false));

    EXPECT_EQ(settingsIn(path()), soundOff);
    EXPECT_EQ(fs::file_size(aside()), 10'000'000'000u);
}

TEST_F(PreferencesFault, neverOverwritesAFileThatWasSetAside) {
    for (const char* content : {"first", "second", "third"}) {
        writeFile(path(), content);
        EXPECT_TRUE(storeNow(PreferencesFile(path()), u"sound"_s, false));
    }

    EXPECT_EQ(readFile(aside()), "first");
    EXPECT_EQ(readFile(folder() / "preferences.cbor.unreadable-2"), "second");
    EXPECT_EQ(readFile(folder() / "preferences.cbor.unreadable-3"), "third");
}

TEST_F(PreferencesFault, setsAFolderAsideThatIsInTheFilesPlace) {
    writeFile(path() / "inside", "kept");

    EXPECT_TRUE(storeNow(PreferencesFile(path()), u"sound"_s, false));

    EXPECT_EQ(settingsIn(path()), soundOff);
    EXPECT_EQ(readFile(aside() / "inside"), "kept");
}

TEST_F(PreferencesFault, doesNotBlockOnANamedPipeInTheFilesPlace) {
    ASSERT_EQ(::mkfifo(path().c_str(), 0600), 0);

    EXPECT_TRUE(storeNow(PreferencesFile(path()), u"sound"_s, false));

    EXPECT_EQ(settingsIn(path()), soundOff);
    EXPECT_TRUE(fs::is_fifo(aside()));
}

/// What a symbolic link in the file's place may lead to.
using MakeTarget = void (*)(const fs::path&);

class LinkToNoRegularFile : public PreferencesFault,
                            public testing::WithParamInterface<MakeTarget> {};

TEST_P(LinkToNoRegularFile, isSetAsideAndItsTargetStays) {
    const fs::path target = folder() / "target";
    GetParam()(target);
    const fs::file_type type = fs::symlink_status(target).type();
    fs::create_symlink("hop", path());
    fs::create_symlink("target", folder() / "hop");

    EXPECT_TRUE(storeNow(PreferencesFile(path()), u"sound"_s, false));

    EXPECT_EQ(settingsIn(path()), soundOff);
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(path())));
    EXPECT_EQ(fs::read_symlink(aside()), "hop");
    EXPECT_EQ(fs::symlink_status(target).type(), type);
    EXPECT_EQ(namesIn(folder(), "target"), std::vector<std::string>{"target"});
}

INSTANTIATE_TEST_SUITE_P(
    PreferencesFault, LinkToNoRegularFile,
    testing::Values([](const fs::path& target) { EXPECT_EQ(::mkfifo(target.c_str(), 0600), 0); },
                    [](const fs::path& target) { fs::create_directory(target); },
                    [](const fs::path& target) {
                        EXPECT_EQ(::mknod(target.c_str(), S_IFSOCK | 0600, 0), 0);
                    },
                    [](const fs::path& target) { fs::create_symlink("target", target); }));

TEST_F(PreferencesFault, setsAFileAsideThatItHasNoPermissionToRead) {
    writeFile(path(), "secret");
    const AsOrdinaryUser ordinary(folder().parent_path());
    fs::permissions(path(), fs::perms::none);

    EXPECT_TRUE(storeNow(PreferencesFile(path()), u"sound"_s, false));

    EXPECT_EQ(settingsIn(path()), soundOff);
    fs::permissions(aside(), fs::perms::owner_read);
    EXPECT_EQ(readFile(aside()), "secret");
}

TEST_F(PreferencesFault, setsAFileAsideThatBecameReadableOnlyAfterTheStart) {
    const QByteArray old = QCborValue(QCborMap{{u"best-Swift"_s, 900}}).toCbor();
    writeFile(path(), old);
    const AsOrdinaryUser ordinary(folder().parent_path());
    fs::permissions(path(), fs::perms::none);
    PreferencesFile preferences(path());
    fs::permissions(path(), fs::perms::owner_read);

    EXPECT_TRUE(storeNow(preferences, u"best-Swift"_s, 10));

    EXPECT_EQ(preferences.integer(u"best-Swift"_s), 10);
    EXPECT_EQ(readFile(aside()), old);
}

TEST_F(PreferencesFault, keepsTheOldFileInAFolderWithoutWritePermission) {
    ASSERT_TRUE(storeNow(PreferencesFile(path()), u"sound"_s, true));
    const QByteArray before = readFile(path());
    const AsOrdinaryUser ordinary(folder().parent_path());
    fs::permissions(folder(), fs::perms::owner_read | fs::perms::owner_exec);
    PreferencesFile preferences(path(), noRetry);

    EXPECT_FALSE(storeNow(preferences, u"sound"_s, false));

    EXPECT_EQ(preferences.boolean(u"sound"_s), false);
    EXPECT_EQ(readFile(path()), before);
    fs::permissions(folder(), fs::perms::owner_all);
    EXPECT_TRUE(storeNow(preferences, u"best-Swift"_s, 10));
    EXPECT_EQ(settingsIn(path()), settingsOf({{u"sound"_s, false}, {u"best-Swift"_s, 10}}));
}

TEST_F(PreferencesFault, storesWithALockFileThatIsReadOnly) {
    writeFile(path().native() + ".lock", "");
    const AsOrdinaryUser ordinary(folder().parent_path());
    fs::permissions(path().native() + ".lock", fs::perms::owner_read);

    EXPECT_TRUE(storeNow(PreferencesFile(path()), u"sound"_s, false));
}

TEST_F(PreferencesFault, storesWithALockFileThatItHasNoPermissionToOpen) {
    writeFile(path().native() + ".lock", "");
    const AsOrdinaryUser ordinary(folder().parent_path());
    fs::permissions(path().native() + ".lock", fs::perms::none);

    EXPECT_TRUE(storeNow(PreferencesFile(path()), u"sound"_s, false));
}

TEST_F(PreferencesFault, storesWithASymbolicLinkLoopInTheLockFilesPlace) {
    fs::create_symlink("preferences.cbor.lock", path().native() + ".lock");

    EXPECT_TRUE(storeNow(PreferencesFile(path()), u"sound"_s, false));
}

TEST_F(PreferencesFault, keepsTheOldFileOnAFullDiskAndWritesEverythingWithTheNextStore) {
    PreferencesFile preferences(path(), noRetry);
    ASSERT_TRUE(storeNow(preferences, u"best-Swift"_s, 10));
    const QByteArray before = readFile(path());
    {
        const FileSizeLimit full(static_cast<rlim_t>(before.size() - 1));
        EXPECT_FALSE(storeNow(preferences, u"best-Swift"_s, 20));
        EXPECT_FALSE(storeNow(preferences, u"player-name"_s, u"Ada"_s));
    }
    EXPECT_EQ(preferences.text(u"player-name"_s), u"Ada"_s);
    EXPECT_EQ(readFile(path()), before);
    EXPECT_EQ(namesIn(folder(), "preferences.cbor.new-").size(), 0u);

    EXPECT_TRUE(storeNow(preferences, u"sound"_s, false));

    EXPECT_EQ(
        settingsIn(path()),
        settingsOf({{u"best-Swift"_s, 20}, {u"player-name"_s, u"Ada"_s}, {u"sound"_s, false}}));
}

TEST_F(PreferencesFault, writesUnsavedValuesOnDestruction) {
    {
        PreferencesFile preferences(path(), noRetry);
        ASSERT_TRUE(storeNow(preferences, u"best-Swift"_s, 10));
        {
            const FileSizeLimit full(0);
            EXPECT_FALSE(storeNow(preferences, u"best-Swift"_s, 20));
            EXPECT_FALSE(storeNow(preferences, u"sound"_s, false));
        }
        EXPECT_EQ(settingsIn(path()), settingsOf({{u"best-Swift"_s, 10}}));
    }

    EXPECT_EQ(settingsIn(path()), settingsOf({{u"best-Swift"_s, 20}, {u"sound"_s, false}}));
}

TEST_F(PreferencesFault, writesNothingOnDestructionWithoutUnsavedValues) {
    std::make_unique<PreferencesFile>(path()).reset();

    EXPECT_FALSE(fs::exists(path()));
}

TEST_F(PreferencesFault, failsToStoreInAFolderWithTooLongAPath) {
    // Recursing into each level with a copy of the path would take all memory.
    std::string deep = folder().native();
    for (int level = 0; level < 50'000; ++level) {
        deep += "/x";
    }

    EXPECT_FALSE(storeNow(PreferencesFile(deep + "/preferences.cbor"), u"sound"_s, false));
}

TEST_F(PreferencesFault, createsMissingFoldersAndFailsToStoreWhereItCannot) {
    EXPECT_TRUE(storeNow(PreferencesFile(folder() / "a/b/c/preferences.cbor"), u"sound"_s, false));
    writeFile(folder() / "plain", "a file");
    PreferencesFile preferences(folder() / "plain/fernwick/preferences.cbor");

    EXPECT_FALSE(storeNow(preferences, u"sound"_s, false));

    EXPECT_EQ(preferences.boolean(u"sound"_s), false);
    EXPECT_EQ(settingsIn(folder() / "a/b/c/preferences.cbor"), soundOff);
    EXPECT_EQ(readFile(folder() / "plain"), "a file");
}

TEST_F(PreferencesFault, rewritesADeletedFileWithAllKnownSettings) {
    PreferencesFile preferences(path());
    ASSERT_TRUE(storeNow(preferences, u"best-Swift"_s, 10));
    fs::remove_all(folder());

    EXPECT_TRUE(storeNow(preferences, u"sound"_s, false));

    EXPECT_EQ(settingsIn(path()), settingsOf({{u"best-Swift"_s, 10}, {u"sound"_s, false}}));
}

TEST_F(PreferencesFault, logsWhatItReadAndWhereFrom) {
    const LogCapture log(u"fernwick.storage"_s);
    const QString expected = u"fernwick.storage: "_s + QString::fromStdString(path()) + u": "_s;

    const PreferencesFile absent(path());
    EXPECT_TRUE(log.contains(expected + u"absent"_s)) << log.all().toStdString();

    EXPECT_TRUE(storeNow(PreferencesFile(path()), u"sound"_s, false));
    const PreferencesFile loaded(path());
    EXPECT_TRUE(log.contains(expected + u"loaded"_s)) << log.all().toStdString();

    writeFile(path(), "unreadable");
    EXPECT_TRUE(storeNow(PreferencesFile(path()), u"sound"_s, false));
    EXPECT_TRUE(log.contains(expected + u"unreadable"_s)) << log.all().toStdString();
    EXPECT_TRUE(log.contains(u"aside as "_s + QString::fromStdString(aside())));
}

TEST_F(PreferencesFault, logsWhyAStoreFailed) {
    PreferencesFile preferences(path());
    const LogCapture log(u"fernwick.storage"_s);
    {
        const FileSizeLimit full(0);
        EXPECT_FALSE(storeNow(preferences, u"best-Swift"_s, 20));
    }

    EXPECT_TRUE(log.contains(u"write failed: File too large"_s)) << log.all().toStdString();
    EXPECT_TRUE(log.contains(u"could not store settings"_s)) << log.all().toStdString();
}

TEST_F(PreferencesFault, printsNothingUnlessTheLogIsEnabled) {
    testing::internal::CaptureStderr();
    {
        PreferencesFile preferences(path());
        const FileSizeLimit full(0);
        EXPECT_FALSE(storeNow(preferences, u"best-Swift"_s, 20));
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}
