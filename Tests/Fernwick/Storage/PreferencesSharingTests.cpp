#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>

#include <chrono>

#include "Fernwick/Storage/StoreNow.hpp"
#include "Posix/FileDescriptor.hpp"
#include "Storage/PreferencesFile.hpp"
#include "Support/FileContent.hpp"
#include "Support/TemporaryFolder.hpp"

namespace fs = std::filesystem;
using namespace Qt::StringLiterals;
using Posix::FileDescriptor;
using Storage::PreferencesFile;

namespace {

class PreferencesSharing : public testing::Test {
protected:
    PreferencesSharing() { fs::create_directories(folder()); }

    [[nodiscard]] fs::path folder() const { return folder_.path() / "fernwick"; }
    [[nodiscard]] fs::path path() const { return folder() / "preferences.cbor"; }

private:
    TemporaryFolder folder_;
};

/// Holds the lock as another process would: flock() locks belong to the open file description.
FileDescriptor heldLock(const fs::path& path) {
    const std::string lock = path.native() + ".lock";
    FileDescriptor file(::open(lock.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600));
    EXPECT_EQ(::flock(file.number(), LOCK_EX | LOCK_NB), 0);
    return file;
}

}  // namespace

TEST_F(PreferencesSharing, givesUpOnAHeldLockAndWritesTheValueWithTheNextStore) {
    PreferencesFile preferences(path(), noRetry);
    ASSERT_TRUE(storeNow(preferences, u"best-Swift"_s, 10));
    FileDescriptor held = heldLock(path());
    const auto before = std::chrono::steady_clock::now();

    EXPECT_FALSE(storeNow(preferences, u"best-Swift"_s, 20));

    EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::seconds(3));
    EXPECT_EQ(preferences.integer(u"best-Swift"_s), 20);
    EXPECT_EQ(settingsIn(path()), settingsOf({{u"best-Swift"_s, 10}}));
    held.close();
    EXPECT_TRUE(storeNow(preferences, u"sound"_s, false));
    EXPECT_EQ(settingsIn(path()), settingsOf({{u"best-Swift"_s, 20}, {u"sound"_s, false}}));
}

TEST_F(PreferencesSharing, readsWhileTheLockIsHeld) {
    ASSERT_TRUE(storeNow(PreferencesFile(path()), u"best-Swift"_s, 10));
    const FileDescriptor held = heldLock(path());

    EXPECT_EQ(PreferencesFile(path()).integer(u"best-Swift"_s), 10);
}

TEST_F(PreferencesSharing, removesTemporaryFilesOfAKilledProcess) {
    writeFile(folder() / "preferences.cbor.new-a1B2c3", "half");

    const PreferencesFile preferences(path());

    EXPECT_FALSE(fs::exists(folder() / "preferences.cbor.new-a1B2c3"));
}

TEST_F(PreferencesSharing, keepsTemporaryFilesWhileTheLockIsHeld) {
    writeFile(folder() / "preferences.cbor.new-a1B2c3", "half");
    const FileDescriptor held = heldLock(path());

    const PreferencesFile preferences(path());

    EXPECT_TRUE(fs::exists(folder() / "preferences.cbor.new-a1B2c3"));
}

TEST_F(PreferencesSharing, keepsFilesWithSimilarNames) {
    const std::vector<std::string> similar{"other.cbor.new-a1B2c3", "preferences.cbor.new-",
                                           "preferences.cbor.new-a1B2c3d",
                                           "preferences.cbor.unreadable-1"};
    for (const std::string& name : similar) {
        writeFile(folder() / name, "kept");
    }
    fs::create_directory(folder() / "preferences.cbor.new-folder");

    const PreferencesFile preferences(path());

    for (const std::string& name : similar) {
        EXPECT_EQ(readFile(folder() / name), "kept") << name;
    }
    EXPECT_TRUE(fs::is_directory(folder() / "preferences.cbor.new-folder"));
}

TEST_F(PreferencesSharing, replacesTheTargetOfASymbolicLink) {
    writeFile(folder() / "elsewhere/settings", QCborValue(QCborMap{{1, 2}}).toCbor());
    fs::create_symlink("elsewhere/second", path());
    fs::create_symlink("settings", folder() / "elsewhere/second");

    EXPECT_TRUE(storeNow(PreferencesFile(path()), u"sound"_s, false));

    EXPECT_EQ(fs::read_symlink(path()), "elsewhere/second");
    EXPECT_EQ(fs::read_symlink(folder() / "elsewhere/second"), "settings");
    EXPECT_EQ(settingsIn(folder() / "elsewhere/settings"),
              settingsOf({{1, 2}, {u"sound"_s, false}}));
}

TEST_F(PreferencesSharing, createsTheTargetOfADanglingSymbolicLink) {
    fs::create_symlink("not/there/yet", path());

    EXPECT_TRUE(storeNow(PreferencesFile(path()), u"sound"_s, false));

    EXPECT_TRUE(fs::is_symlink(path()));
    EXPECT_EQ(settingsIn(folder() / "not/there/yet"), settingsOf({{u"sound"_s, false}}));
}

TEST_F(PreferencesSharing, setsASymbolicLinkLoopAside) {
    fs::create_symlink("preferences.cbor", path());

    EXPECT_TRUE(storeNow(PreferencesFile(path()), u"sound"_s, false));

    EXPECT_EQ(settingsIn(path()), settingsOf({{u"sound"_s, false}}));
}
