#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

#include "Fernwick/Storage/CrashedDisk.hpp"
#include "Fernwick/Storage/StoreNow.hpp"
#include "Storage/PreferencesFile.hpp"
#include "Support/FileContent.hpp"
#include "Support/TemporaryFolder.hpp"

namespace fs = std::filesystem;
using namespace Qt::StringLiterals;
using Storage::PreferencesFile;
using SystemCalls::Effect;

namespace {

const QString savedKey = u"table"_s;
const QByteArray valueBefore(300, 'o');
const QByteArray valueAfter(400, 'n');
const QByteArray unreadable(200, 'u');

/// A save recorded on a real disk, with what was there before.
struct Recording {
    fs::path root;
    CrashedDisk::Files before;
    std::vector<Effect> effects;
};

Recording recordSave(const std::optional<QByteArray>& contentBefore) {
    const TemporaryFolder folder;
    const fs::path path = folder.path() / "fernwick/preferences.cbor";
    Recording recording{folder.path(), {}, {}};
    if (contentBefore) {
        writeFile(path, *contentBefore);
        recording.before[path.parent_path()] = CrashedDisk::folder;
        recording.before[path] = contentBefore->toStdString();
    }
    PreferencesFile preferences(path, noRetry);
    SystemCalls::watch({});
    EXPECT_TRUE(storeNow(preferences, savedKey, valueAfter));
    SystemCalls::unwatch();
    recording.effects = SystemCalls::effects();
    return recording;
}

QByteArray settingsWith(const QByteArray& value) {
    return QCborValue(QCborMap{{savedKey, value}}).toCbor();
}

/// The states of the disk that lose something, over power failures at every moment of the save.
class Replay {
public:
    explicit Replay(const Recording& recording) : recording_(recording) {
        for (std::size_t count = 0; count <= recording.effects.size(); ++count) {
            CrashedDisk::forEachState(recording.before, recording.effects, count,
                                      [&](const CrashedDisk::Files& files) {
                                          check(files, count == recording.effects.size());
                                      });
        }
    }

    [[nodiscard]] int states() const { return states_; }
    [[nodiscard]] int losses() const { return losses_; }

private:
    void check(const CrashedDisk::Files& files, bool saveHadReturned) {
        const TemporaryFolder folder;
        bool hasUnreadable = false;
        for (const auto& [path, content] : files) {
            const fs::path copy = folder.path() / fs::relative(path, recording_.root);
            if (content == CrashedDisk::folder) {
                fs::create_directories(copy);
            } else {
                writeFile(copy, QByteArray::fromStdString(content));
            }
            hasUnreadable = hasUnreadable || content == unreadable.toStdString();
        }
        const PreferencesFile preferences(folder.path() / "fernwick/preferences.cbor");
        const auto stored = preferences.bytes(savedKey);
        const bool keepsOld = stored == oldBefore() && !saveHadReturned;
        const bool keepsUnreadable = !beganUnreadable() || hasUnreadable;
        ++states_;
        losses_ += (stored == valueAfter || keepsOld) && keepsUnreadable ? 0 : 1;
    }

    [[nodiscard]] bool beganUnreadable() const { return beganWith(unreadable); }
    [[nodiscard]] std::optional<QByteArray> oldBefore() const {
        return beganWith(settingsWith(valueBefore)) ? std::optional(valueBefore) : std::nullopt;
    }
    [[nodiscard]] bool beganWith(const QByteArray& content) const {
        return std::ranges::any_of(recording_.before, [&](const auto& file) {
            return file.second == content.toStdString();
        });
    }

    const Recording& recording_;
    int states_ = 0;
    int losses_ = 0;
};

/// The recording without its fsync() number `sync`, counted from 0.
Recording withoutSync(Recording recording, int sync) {
    std::erase_if(recording.effects, [&](const Effect& effect) {
        return effect.kind == Effect::Kind::sync && sync-- == 0;
    });
    return recording;
}

/// Expects `syncs` calls of fsync(), and each of them to be needed.
void expectOnlyCompleteSaves(const std::optional<QByteArray>& contentBefore, int syncs) {
    const Recording recording = recordSave(contentBefore);
    EXPECT_EQ(std::ranges::count(recording.effects, Effect::Kind::sync, &Effect::kind), syncs);

    const Replay replay(recording);

    EXPECT_GT(replay.states(), 20);
    EXPECT_EQ(replay.losses(), 0);
    for (int sync = 0; sync < syncs; ++sync) {
        EXPECT_GT(Replay(withoutSync(recording, sync)).losses(), 0) << "without fsync " << sync;
    }
}

}  // namespace

TEST(PowerLoss, leavesTheOldSettingsOrTheNewAndKeepsASaveThatHasReturned) {
    constexpr int fileAndFolder = 2;
    expectOnlyCompleteSaves(settingsWith(valueBefore), fileAndFolder);
}

TEST(PowerLoss, keepsTheFirstSaveThatHasReturned) {
    constexpr int parentFileAndFolder = 3;
    expectOnlyCompleteSaves(std::nullopt, parentFileAndFolder);
}

TEST(PowerLoss, neverLosesAFileThatIsSetAside) {
    constexpr int asideFileAndFolder = 3;
    expectOnlyCompleteSaves(unreadable, asideFileAndFolder);
}
