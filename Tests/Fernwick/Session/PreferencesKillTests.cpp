#include <gtest/gtest.h>

#include <chrono>
#include <iostream>
#include <random>
#include <thread>

#include "Fernwick/Session/EnvironmentNumber.hpp"
#include "Fernwick/Session/FileContent.hpp"
#include "Fernwick/Session/ForkedProcess.hpp"
#include "Fernwick/Session/TemporaryFolder.hpp"
#include "Session/PreferencesFile.hpp"

namespace fs = std::filesystem;
using namespace Qt::StringLiterals;

namespace {

class PreferencesKill : public testing::Test {
protected:
    [[nodiscard]] fs::path folder() const { return folder_.path() / "fernwick"; }
    [[nodiscard]] fs::path path() const { return folder() / "preferences.cbor"; }

private:
    TemporaryFolder folder_;
};

/// Large enough to take several writes of the disk, and different each time.
QByteArray tableOf(std::int64_t count) {
    return QByteArray::number(static_cast<qlonglong>(count)).repeated(5000);
}

}  // namespace

// FERNWICK_KILL_ROUNDS programs are killed.
TEST_F(PreferencesKill, everySaveThatHadReturnedIsThereAndTheFileIsWhole) {
    const auto rounds = static_cast<int>(environmentNumber("FERNWICK_KILL_ROUNDS", 300));
    std::mt19937 random(std::random_device{}());
    std::uniform_int_distribution<int> lifetime(0, 4000);
    std::int64_t saved = 0;
    for (int round = 0; round < rounds; ++round) {
        ForkedProcess game([&](const auto& report) {
            report(saved);
            PreferencesFile preferences(path());
            for (std::int64_t count = saved + 1;; ++count) {
                if (preferences.store(u"table"_s, tableOf(count)) &&
                    preferences.store(u"count"_s, static_cast<qint64>(count))) {
                    report(count);
                }
            }
        });
        // Half of the programs die anywhere, half after a save however slow the machine is.
        const std::int64_t begun = game.nextReport(saved);
        const std::int64_t first = round % 2 == 0 ? begun : game.nextReport(begun);
        std::this_thread::sleep_for(std::chrono::microseconds(lifetime(random)));
        game.kill();
        const std::int64_t returned = game.lastReport(first);

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
    std::cout << rounds << " programs killed, " << saved << " saves, none lost\n";
    EXPECT_EQ(namesIn(folder()),
              (std::vector<std::string>{"preferences.cbor", "preferences.cbor.lock"}));
}

TEST_F(PreferencesKill, twoProgramsThatSaveAtOnceLoseNothingOfEachOther) {
    constexpr qint64 saves = 150;
    const auto saveUnder = [&](const QString& key) {
        return [this, key](const auto&) {
            PreferencesFile preferences(path());
            for (qint64 count = 1; count <= saves; ++count) {
                while (!preferences.store(key, count)) {
                }
            }
        };
    };
    ForkedProcess one(saveUnder(u"one"_s));
    ForkedProcess other(saveUnder(u"other"_s));

    EXPECT_EQ(one.wait(), 0);
    EXPECT_EQ(other.wait(), 0);

    EXPECT_EQ(settingsIn(path()), settingsOf({{u"one"_s, saves}, {u"other"_s, saves}}));
}

TEST_F(PreferencesKill, whoReadsWhileAnotherSavesFindsOneSaveOrTheNext) {
    ASSERT_TRUE(PreferencesFile(path()).store(u"table"_s, tableOf(1)));
    const ForkedProcess game([this](const auto&) {
        PreferencesFile preferences(path());
        for (std::int64_t count = 1;; count = count % 9 + 1) {
            static_cast<void>(preferences.store(u"table"_s, tableOf(count)));
        }
    });
    for (int time = 0; time < 300; ++time) {
        const QByteArray table = PreferencesFile(path()).bytes(u"table"_s).value_or("");

        ASSERT_EQ(table.size(), 5000);
        ASSERT_EQ(table.count(table.front()), 5000);
    }
}
