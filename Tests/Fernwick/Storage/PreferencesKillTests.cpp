#include <gtest/gtest.h>

#include <chrono>
#include <iostream>
#include <random>
#include <thread>

#include "Fernwick/Storage/StoreNow.hpp"
#include "Storage/PreferencesFile.hpp"
#include "Support/EnvironmentNumber.hpp"
#include "Support/FileContent.hpp"
#include "Support/ForkedProcess.hpp"
#include "Support/TemporaryFolder.hpp"

namespace fs = std::filesystem;
using namespace Qt::StringLiterals;
using Storage::PreferencesFile;

namespace {

/// Several disk blocks, different for each count.
QByteArray tableOf(std::int64_t count) {
    return QByteArray::number(static_cast<qlonglong>(count)).repeated(5000);
}

// Each process numbers its saves from 1 and reports when each begins and returns.
constexpr std::int64_t beginningOf(std::int64_t save) {
    return 2 * save - 1;
}

constexpr std::int64_t returnOf(std::int64_t save) {
    return 2 * save;
}

constexpr bool isBeginning(std::int64_t report) {
    return report % 2 == 1;
}

constexpr std::int64_t lastReturned(std::int64_t report) {
    return report / 2;
}

class PreferencesKill : public testing::Test {
protected:
    [[nodiscard]] fs::path folder() const { return folder_.path() / "fernwick"; }
    [[nodiscard]] fs::path path() const { return folder() / "preferences.cbor"; }

    /// Two stores, so that a process can also be killed between them.
    [[nodiscard]] static bool save(PreferencesFile& preferences, std::int64_t count) {
        return storeNow(preferences, u"table"_s, tableOf(count)) &&
               storeNow(preferences, u"count"_s, static_cast<qint64>(count));
    }

    /// The time of a save on this machine at its current load.
    [[nodiscard]] static std::int64_t microsecondsOfASave() {
        constexpr int saves = 20;
        const TemporaryFolder elsewhere;
        PreferencesFile preferences(elsewhere.path() / "preferences.cbor");
        const auto began = std::chrono::steady_clock::now();
        for (int count = 1; count <= saves; ++count) {
            EXPECT_TRUE(save(preferences, count));
        }
        return (std::chrono::steady_clock::now() - began) / std::chrono::microseconds(saves);
    }

private:
    TemporaryFolder folder_;
};

}  // namespace

// Kills as many processes as FERNWICK_KILL_ROUNDS says.
TEST_F(PreferencesKill, keepsEverySaveThatHasReturned) {
    const auto rounds = static_cast<int>(environmentNumber("FERNWICK_KILL_ROUNDS", 300));
    std::mt19937 random(std::random_device{}());
    std::uniform_int_distribution<std::int64_t> lifetime(0, 2 * microsecondsOfASave());
    std::int64_t saved = 0;
    int insideASave = 0;
    for (int round = 0; round < rounds; ++round) {
        ForkedProcess process([&](const auto& report) {
            report(returnOf(saved));
            PreferencesFile preferences(path());
            for (std::int64_t count = saved + 1;; ++count) {
                report(beginningOf(count));
                if (save(preferences, count)) {
                    report(returnOf(count));
                }
            }
        });
        // Kill half of the processes at any time, the other half after at least one save.
        std::int64_t last = process.nextReport(returnOf(saved));
        if (round % 2 == 1) {
            const std::int64_t begun = process.nextReport(last);
            last = process.nextReport(begun);
        }
        std::this_thread::sleep_for(std::chrono::microseconds(lifetime(random)));
        process.kill();
        last = process.lastReport(last);
        insideASave += isBeginning(last) ? 1 : 0;
        const std::int64_t returned = lastReturned(last);

        const PreferencesFile preferences(path());

        const std::int64_t count = preferences.integer(u"count"_s);
        ASSERT_GE(count, returned) << "in round " << round;
        ASSERT_LE(count, returned + 1) << "in round " << round;
        const QByteArray table = preferences.bytes(u"table"_s).value_or(tableOf(0));
        ASSERT_TRUE(table == tableOf(count) || table == tableOf(count + 1) ||
                    (count == 0 && table == tableOf(0)))
            << "in round " << round;
        saved = count;
    }
    EXPECT_GE(saved, rounds / 2);
    EXPECT_GE(insideASave, rounds / 2);
    std::cout << rounds << " processes killed, " << insideASave << " of them during a save; "
              << saved << " saves, none lost\n";
    EXPECT_EQ(namesIn(folder()),
              (std::vector<std::string>{"preferences.cbor", "preferences.cbor.lock"}));
}

TEST_F(PreferencesKill, concurrentProcessesKeepEachOthersSettings) {
    constexpr qint64 saves = 150;
    const auto saveUnder = [&](const QString& key) {
        return [this, key](const auto&) {
            PreferencesFile preferences(path());
            for (qint64 count = 1; count <= saves; ++count) {
                while (!storeNow(preferences, key, count)) {
                }
            }
        };
    };
    ForkedProcess first(saveUnder(u"one"_s));
    ForkedProcess second(saveUnder(u"other"_s));

    EXPECT_EQ(first.wait(), 0);
    EXPECT_EQ(second.wait(), 0);

    EXPECT_EQ(settingsIn(path()), settingsOf({{u"one"_s, saves}, {u"other"_s, saves}}));
}

TEST_F(PreferencesKill, aReaderNeverSeesAPartOfASave) {
    ASSERT_TRUE(storeNow(PreferencesFile(path()), u"table"_s, tableOf(1)));
    const ForkedProcess process([this](const auto&) {
        PreferencesFile preferences(path());
        for (std::int64_t count = 1;; count = count % 9 + 1) {
            static_cast<void>(storeNow(preferences, u"table"_s, tableOf(count)));
        }
    });
    for (int time = 0; time < 300; ++time) {
        const QByteArray table = PreferencesFile(path()).bytes(u"table"_s).value_or("");

        ASSERT_EQ(table.size(), 5000);
        ASSERT_EQ(table.count(table.front()), 5000);
    }
}
