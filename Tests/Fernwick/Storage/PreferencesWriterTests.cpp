#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <thread>

#include "Fernwick/Storage/StoreNow.hpp"
#include "Fernwick/Storage/SystemCalls.hpp"
#include "Storage/PreferencesFile.hpp"
#include "Support/FileContent.hpp"
#include "Support/LogCapture.hpp"
#include "Support/TemporaryFolder.hpp"

namespace fs = std::filesystem;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Storage::PreferencesFile;
using SystemCalls::Outcome;

namespace {

class PreferencesWriter : public testing::Test {
protected:
    PreferencesWriter() { EXPECT_TRUE(storeNow(PreferencesFile(path()), u"best-Swift"_s, 10)); }

    [[nodiscard]] fs::path path() const { return folder_.path() / "fernwick/preferences.cbor"; }

    static void blockDisk() { SystemCalls::watch({.call = 0, .outcome = Outcome::blocks}); }
    static void failAllWrites() {
        SystemCalls::watch(
            {.call = 0, .outcome = Outcome::fails, .error = ENOSPC, .repeats = true});
    }

    [[nodiscard]] static bool waitFor(const auto& condition) {
        const auto deadline = std::chrono::steady_clock::now() + 10s;
        while (!condition() && std::chrono::steady_clock::now() < deadline) {
            std::this_thread::sleep_for(1ms);
        }
        return condition();
    }

private:
    TemporaryFolder folder_;
};

}  // namespace

TEST_F(PreferencesWriter, storesWhileTheDiskDoesNotRespond) {
    PreferencesFile preferences(path());
    blockDisk();
    for (int score = 20; score <= 1000; score += 10) {
        preferences.store(u"best-Swift"_s, score);
        EXPECT_EQ(preferences.integer(u"best-Swift"_s), score);
    }
    SystemCalls::waitUntilBlocked();
    EXPECT_FALSE(preferences.flush(10ms));
    EXPECT_EQ(settingsIn(path()), settingsOf({{u"best-Swift"_s, 10}}));

    SystemCalls::release();

    EXPECT_TRUE(preferences.flush(1min));
    SystemCalls::unwatch();
    EXPECT_EQ(settingsIn(path()), settingsOf({{u"best-Swift"_s, 1000}}));
}

TEST_F(PreferencesWriter, writesTogetherWhatWasStoredDuringAWrite) {
    PreferencesFile preferences(path());
    blockDisk();
    preferences.store(u"best-Swift"_s, 20);
    SystemCalls::waitUntilBlocked();
    for (int score = 30; score <= 1000; score += 10) {
        preferences.store(u"best-Swift"_s, score);
    }
    SystemCalls::release();
    EXPECT_TRUE(preferences.flush(1min));
    const std::vector<std::string> calls = SystemCalls::unwatch();

    EXPECT_EQ(std::ranges::count(calls, "rename"), 1 + 1);
    EXPECT_EQ(settingsIn(path()), settingsOf({{u"best-Swift"_s, 1000}}));
}

TEST_F(PreferencesWriter, triesAFailedWriteAgainByItself) {
    const LogCapture log(u"fernwick.storage"_s);
    PreferencesFile preferences(path(), 20ms);
    failAllWrites();
    preferences.store(u"best-Swift"_s, 20);
    EXPECT_FALSE(preferences.flush(1min));
    EXPECT_EQ(settingsIn(path()), settingsOf({{u"best-Swift"_s, 10}}));
    EXPECT_TRUE(log.contains(u"No space left on device"_s)) << log.all().toStdString();
    EXPECT_TRUE(log.contains(u"trying again in 20 ms"_s)) << log.all().toStdString();

    SystemCalls::unwatch();

    EXPECT_TRUE(waitFor([&] { return settingsIn(path()) == settingsOf({{u"best-Swift"_s, 20}}); }));
}

TEST_F(PreferencesWriter, keepsTheLatestValueOfAFailedWriteAndALaterStore) {
    PreferencesFile preferences(path(), noRetry);
    failAllWrites();
    preferences.store(u"best-Swift"_s, 20);
    preferences.store(u"best-Gentle"_s, 70);
    EXPECT_FALSE(preferences.flush(1min));
    SystemCalls::unwatch();

    EXPECT_TRUE(storeNow(preferences, u"best-Swift"_s, 30));

    EXPECT_EQ(settingsIn(path()), settingsOf({{u"best-Gentle"_s, 70}, {u"best-Swift"_s, 30}}));
}

TEST_F(PreferencesWriter, keepsAValueThatWasStoredDuringAFailingWrite) {
    PreferencesFile preferences(path(), noRetry);
    SystemCalls::watch({});
    EXPECT_TRUE(storeNow(preferences, u"best-Swift"_s, 15));
    const std::vector<std::string> calls = SystemCalls::unwatch();
    const auto write = std::ranges::find(calls, "write") - calls.begin();
    SystemCalls::watch(
        {.call = static_cast<std::size_t>(write), .outcome = Outcome::blocks, .error = EIO});
    preferences.store(u"best-Swift"_s, 20);
    SystemCalls::waitUntilBlocked();
    preferences.store(u"best-Swift"_s, 30);
    SystemCalls::release();

    EXPECT_TRUE(preferences.flush(1min));

    SystemCalls::unwatch();
    EXPECT_EQ(settingsIn(path()), settingsOf({{u"best-Swift"_s, 30}}));
}

TEST_F(PreferencesWriter, waitsForTheDiskOnDestruction) {
    {
        PreferencesFile preferences(path());
        blockDisk();
        preferences.store(u"best-Swift"_s, 20);
        SystemCalls::waitUntilBlocked();
        std::thread([] {
            std::this_thread::sleep_for(100ms);
            SystemCalls::release();
        }).detach();
    }

    SystemCalls::unwatch();
    EXPECT_EQ(settingsIn(path()), settingsOf({{u"best-Swift"_s, 20}}));
}

TEST_F(PreferencesWriter, givesUpAfterFiveSecondsOnDestructionIfTheDiskDoesNotRespond) {
    const auto began = std::chrono::steady_clock::now();
    {
        PreferencesFile preferences(path());
        blockDisk();
        preferences.store(u"best-Swift"_s, 20);
        SystemCalls::waitUntilBlocked();
    }
    const auto waited = std::chrono::steady_clock::now() - began;

    EXPECT_GE(waited, 5s);
    EXPECT_LT(waited, 10s);
    EXPECT_EQ(settingsIn(path()), settingsOf({{u"best-Swift"_s, 10}}));
    SystemCalls::release();
    EXPECT_TRUE(waitFor([&] { return settingsIn(path()) == settingsOf({{u"best-Swift"_s, 20}}); }));
    SystemCalls::unwatch();
}

TEST_F(PreferencesWriter, startsNoThreadUntilSomethingIsStored) {
    const auto threads = [] { return namesIn("/proc/self/task").size(); };
    const auto before = threads();

    PreferencesFile preferences(path());

    EXPECT_EQ(threads(), before);
    EXPECT_TRUE(storeNow(preferences, u"best-Swift"_s, 20));
    EXPECT_EQ(threads(), before + 1);
}
