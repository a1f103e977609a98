#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "Fernwick/Storage/StoreNow.hpp"
#include "Fernwick/Storage/SystemCalls.hpp"
#include "Storage/PreferencesFile.hpp"
#include "Support/FileContent.hpp"
#include "Support/ForkedProcess.hpp"
#include "Support/LogCapture.hpp"
#include "Support/TemporaryFolder.hpp"

namespace fs = std::filesystem;
using namespace Qt::StringLiterals;
using Storage::PreferencesFile;
using SystemCalls::Outcome;

namespace {

const QString table = u"table"_s;
const QByteArray oldTable(70000, 'o');
const QByteArray newTable(90000, 'n');

/// A temporary folder in which the old table is stored.
class Disk {
public:
    Disk() { EXPECT_TRUE(storeNow(PreferencesFile(path()), table, oldTable)); }

    [[nodiscard]] fs::path folder() const { return folder_.path() / "fernwick"; }
    [[nodiscard]] fs::path path() const { return folder() / "preferences.cbor"; }
    [[nodiscard]] QByteArray stored() const {
        return PreferencesFile(path()).bytes(table).value_or("neither");
    }
    [[nodiscard]] bool isTidy() const { return namesIn(folder(), "preferences.cbor.new-").empty(); }

private:
    TemporaryFolder folder_;
};

struct Result {
    bool stored;
    std::vector<std::string> calls;
};

Result storeNew(PreferencesFile& preferences, const SystemCalls::Plan& plan) {
    SystemCalls::watch(plan);
    const bool stored = storeNow(preferences, table, newTable);
    return {stored, SystemCalls::unwatch()};
}

std::vector<std::string> callsOfAStore() {
    const Disk disk;
    PreferencesFile preferences(disk.path(), noRetry);
    return storeNew(preferences, {}).calls;
}

class PreferencesSystemCall : public testing::TestWithParam<int> {};

}  // namespace

TEST(PreferencesSystemCalls, syncsTheContentBeforeTheRenameAndTheFolderAfter) {
    std::vector<std::string> calls = callsOfAStore();
    std::erase_if(calls, [](const std::string& call) {
        return call != "mkostemp" && call != "write" && call != "fsync" && call != "rename";
    });

    EXPECT_EQ(calls, (std::vector<std::string>{"mkostemp", "write", "fsync", "rename", "fsync"}));
}

TEST_P(PreferencesSystemCall, failingOnceLeavesTheOldContentOrTheNew) {
    const std::size_t count = callsOfAStore().size();
    ASSERT_GT(count, 10u);
    for (std::size_t call = 0; call < count; ++call) {
        const Disk disk;
        PreferencesFile preferences(disk.path(), noRetry);

        const auto [stored, calls] =
            storeNew(preferences, {.call = call, .outcome = Outcome::fails, .error = GetParam()});

        SCOPED_TRACE(calls[call] + ", call " + std::to_string(call));
        EXPECT_EQ(preferences.bytes(table), newTable);
        EXPECT_TRUE(disk.stored() == newTable || (!stored && disk.stored() == oldTable));
        EXPECT_TRUE(disk.isTidy());
        EXPECT_TRUE(storeNow(preferences, u"sound"_s, false));
        EXPECT_EQ(disk.stored(), newTable);
        EXPECT_TRUE(disk.isTidy());
    }
}

TEST_P(PreferencesSystemCall, failingRepeatedlyLeavesTheOldContentOrTheNew) {
    const std::size_t count = callsOfAStore().size();
    for (std::size_t call = 0; call < count; ++call) {
        const Disk disk;
        PreferencesFile preferences(disk.path(), noRetry);

        const auto [stored, calls] = storeNew(
            preferences,
            {.call = call, .outcome = Outcome::fails, .error = GetParam(), .repeats = true});

        SCOPED_TRACE(calls[call] + ", call " + std::to_string(call));
        EXPECT_TRUE(disk.stored() == newTable || (!stored && disk.stored() == oldTable));
        EXPECT_TRUE(storeNow(preferences, u"sound"_s, false));
        EXPECT_EQ(disk.stored(), newTable);
    }
}

TEST_P(PreferencesSystemCall, isLoggedWithItsErrorWhenTheStoreFails) {
    const QString reason = QString::fromLatin1(std::strerror(GetParam()));
    const std::size_t count = callsOfAStore().size();
    int failures = 0;
    for (std::size_t call = 0; call < count; ++call) {
        const Disk disk;
        PreferencesFile preferences(disk.path(), noRetry);
        const LogCapture log(u"fernwick.storage"_s);

        const auto [stored, calls] = storeNew(
            preferences,
            {.call = call, .outcome = Outcome::fails, .error = GetParam(), .repeats = true});

        failures += stored ? 0 : 1;
        EXPECT_TRUE(stored || log.contains(reason)) << calls[call] << ", call " << call;
    }
    EXPECT_GT(failures, 3);
}

INSTANTIATE_TEST_SUITE_P(PreferencesSystemCalls, PreferencesSystemCall,
                         testing::Values(ENOSPC, EDQUOT, EIO, EACCES, EROFS, EMFILE),
                         [](const auto& instance) {
                             return std::string(::strerrorname_np(instance.param));
                         });

TEST(PreferencesSystemCalls, retriesInterruptedCalls) {
    const std::size_t count = callsOfAStore().size();
    for (std::size_t call = 0; call < count; ++call) {
        const Disk disk;
        PreferencesFile preferences(disk.path(), noRetry);

        const auto [stored, calls] =
            storeNew(preferences, {.call = call, .outcome = Outcome::fails, .error = EINTR});

        EXPECT_TRUE(stored) << calls[call] << ", call " << call;
        EXPECT_EQ(disk.stored(), newTable);
    }
}

TEST(PreferencesSystemCalls, continuesAfterAShortWrite) {
    const Disk disk;
    PreferencesFile preferences(disk.path(), noRetry);
    const std::vector<std::string> calls = callsOfAStore();
    const auto write = std::find(calls.begin(), calls.end(), "write") - calls.begin();

    const auto [stored, callsMade] = storeNew(
        preferences,
        {.call = static_cast<std::size_t>(write), .outcome = Outcome::shortWrite, .repeats = true});

    EXPECT_TRUE(stored);
    EXPECT_EQ(disk.stored(), newTable);
    EXPECT_GT(std::count(callsMade.begin(), callsMade.end(), "write"), 5);
}

TEST(PreferencesSystemCalls, storesOnAFileSystemWithoutLocks) {
    const std::vector<std::string> calls = callsOfAStore();
    const auto flock = std::find(calls.begin(), calls.end(), "flock") - calls.begin();
    for (const int error : {ENOLCK, ENOSYS, EOPNOTSUPP}) {
        const Disk disk;
        PreferencesFile preferences(disk.path(), noRetry);

        EXPECT_TRUE(storeNew(preferences, {.call = static_cast<std::size_t>(flock),
                                           .outcome = Outcome::fails,
                                           .error = error})
                        .stored);
        EXPECT_EQ(disk.stored(), newTable);
    }
}

TEST(PreferencesSystemCalls, exitingAtAnyCallLeavesTheOldContentOrTheNew) {
    const std::size_t count = callsOfAStore().size();
    bool renamed = false;
    for (std::size_t call = 0; call < count; ++call) {
        for (const Outcome outcome : {Outcome::exitsBefore, Outcome::exitsAfter}) {
            const Disk disk;
            ForkedProcess process([&](const auto&) {
                PreferencesFile preferences(disk.path(), noRetry);
                static_cast<void>(storeNew(preferences, {.call = call, .outcome = outcome}));
            });
            EXPECT_EQ(process.wait(), 1);

            const QByteArray stored = disk.stored();

            renamed = renamed || stored == newTable;
            EXPECT_EQ(stored, renamed ? newTable : oldTable) << "at call " << call;
            EXPECT_TRUE(disk.isTidy());
        }
    }
    EXPECT_TRUE(renamed);
}

TEST(PreferencesSystemCalls, keepsAnUnreadableFileWhicheverCallFails) {
    for (std::size_t call = 0;; ++call) {
        const Disk disk;
        writeFile(disk.path(), "unreadable");
        PreferencesFile preferences(disk.path(), noRetry);

        const auto [stored, calls] =
            storeNew(preferences, {.call = call, .outcome = Outcome::fails, .error = ENOSPC});

        if (call >= calls.size()) {
            break;
        }
        SCOPED_TRACE(calls[call] + ", call " + std::to_string(call));
        EXPECT_TRUE(storeNow(preferences, table, newTable));
        EXPECT_EQ(disk.stored(), newTable);
        EXPECT_EQ(readFile(disk.path().native() + ".unreadable-1"), "unreadable");
        EXPECT_EQ(namesIn(disk.folder(), "preferences.cbor.unreadable").size(), 1u);
    }
}
