#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <numeric>

#include "Fernwick/Sound/LoudspeakerRecorder.hpp"
#include "Fernwick/Sound/SoundServer.hpp"
#include "Sound/PulseSoundEffects.hpp"
#include "Sound/SoundWave.hpp"
#include "Support/LogCapture.hpp"

namespace fs = std::filesystem;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Sound::PulseSoundEffects;
using Sound::sampleRate;
using Sound::soundWave;

namespace {

using Wave = std::vector<std::int16_t>;

/// Far shorter than any timeout of libpulse, far longer than delays on a busy machine.
constexpr auto shortTime = 100ms;

class PulseSoundEffectsTest : public testing::Test {
protected:
    SoundServer server_;
};

template <typename Action>
std::chrono::nanoseconds timeOf(Action action) {
    const auto before = std::chrono::steady_clock::now();
    action();
    return std::chrono::steady_clock::now() - before;
}

double energy(const Wave& wave) {
    return std::accumulate(wave.begin(), wave.end(), 0.0, [](double sum, std::int16_t sample) {
        return sum + static_cast<double>(sample) * sample;
    });
}

Wave withoutSilence(const Wave& wave) {
    const auto loud = [](std::int16_t sample) { return sample != 0; };
    return {std::find_if(wave.begin(), wave.end(), loud),
            std::find_if(wave.rbegin(), wave.rend(), loud).base()};
}

int greatestDifference(const Wave& one, const Wave& other) {
    int greatest = 0;
    for (std::size_t i = 0; i < std::min(one.size(), other.size()); ++i) {
        greatest = std::max(greatest, std::abs(one[i] - other[i]));
    }
    return greatest;
}

/// Waits for a sound and the silence after it.
Wave recordedBy(LoudspeakerRecorder& recorder) {
    constexpr std::size_t pause = sampleRate / 5;
    EXPECT_TRUE(
        eventually([&] { return !recorder.sound().empty() && recorder.endsInSilence(pause); }));
    return recorder.sound();
}

/// Voluntary context switches of the sound thread; std::nullopt if it is not running.
std::optional<long> contextSwitches() {
    for (const auto& task : fs::directory_iterator("/proc/self/task")) {
        std::string name;
        std::ifstream(task.path() / "comm") >> name;
        std::ifstream status(task.path() / "status");
        for (std::string word; name == "sounds" && status >> word;) {
            long count = 0;
            if (word == "voluntary_ctxt_switches:" && status >> count) {
                return count;
            }
        }
    }
    return std::nullopt;
}

}  // namespace

TEST_F(PulseSoundEffectsTest, playsEachEffectUnaltered) {
    ASSERT_TRUE(server_.start());
    PulseSoundEffects effects("org.fernwick.fernwick");
    effects.prepare();
    ASSERT_TRUE(eventually(SoundServer::hasBothEffects));
    for (const SoundEffect effect : {SoundEffect::pop, SoundEffect::tink}) {
        LoudspeakerRecorder recorder;

        effects.play(effect);

        const Wave expected = withoutSilence(soundWave(effect));
        const Wave played = recordedBy(recorder);
        EXPECT_EQ(played.size(), expected.size());
        EXPECT_LE(greatestDifference(played, expected), 2);
    }
}

TEST_F(PulseSoundEffectsTest, tellsVolumeMixersItsNameAndIcon) {
    ASSERT_TRUE(server_.start());
    PulseSoundEffects effects("org.fernwick.fernwick");

    effects.prepare();

    ASSERT_TRUE(eventually(SoundServer::hasBothEffects));
    const std::string clients = SoundServer::clients();
    for (const char* property :
         {"application.name = \"Fernwick\"", "application.icon_name = \"org.fernwick.fernwick\""}) {
        EXPECT_NE(clients.find(property), std::string::npos) << property << " not in\n" << clients;
    }
}

TEST_F(PulseSoundEffectsTest, effectsOverlap) {
    ASSERT_TRUE(server_.start());
    PulseSoundEffects effects("org.fernwick.fernwick");
    effects.prepare();
    ASSERT_TRUE(eventually(SoundServer::hasBothEffects));
    LoudspeakerRecorder recorder;

    effects.play(SoundEffect::pop);
    effects.play(SoundEffect::tink);

    const Wave pop = soundWave(SoundEffect::pop);
    const Wave tink = soundWave(SoundEffect::tink);
    const Wave played = recordedBy(recorder);
    EXPECT_LT(played.size(), pop.size() + withoutSilence(tink).size() - pop.size() / 4);
    EXPECT_NEAR(energy(played) / (energy(pop) + energy(tink)), 1, 0.25);
}

TEST_F(PulseSoundEffectsTest, theFirstPlayConnects) {
    ASSERT_TRUE(server_.start());
    PulseSoundEffects effects("org.fernwick.fernwick");

    effects.play(SoundEffect::pop);

    EXPECT_TRUE(eventually(SoundServer::hasBothEffects));
}

TEST_F(PulseSoundEffectsTest, startsNoThreadBeforeTheFirstEffect) {
    const PulseSoundEffects effects("org.fernwick.fernwick");

    EXPECT_EQ(contextSwitches(), std::nullopt);
}

TEST_F(PulseSoundEffectsTest, theThreadSleepsBetweenEffects) {
    ASSERT_TRUE(server_.start());
    PulseSoundEffects effects("org.fernwick.fernwick");
    effects.prepare();
    ASSERT_TRUE(eventually(SoundServer::hasBothEffects));
    effects.play(SoundEffect::pop);
    std::this_thread::sleep_for(500ms);
    const auto before = contextSwitches();
    ASSERT_NE(before, std::nullopt);

    std::this_thread::sleep_for(1500ms);

    EXPECT_EQ(contextSwitches(), before);
}

TEST_F(PulseSoundEffectsTest, neitherBlocksNorPrintsWithoutAServer) {
    testing::internal::CaptureStderr();
    testing::internal::CaptureStdout();
    {
        PulseSoundEffects effects("org.fernwick.fernwick");
        EXPECT_LT(timeOf([&] { effects.prepare(); }), shortTime);
        for (int time = 0; time < 20; ++time) {
            EXPECT_LT(timeOf([&] { effects.play(SoundEffect::pop); }), shortTime);
            std::this_thread::sleep_for(10ms);
        }
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST_F(PulseSoundEffectsTest, logsWhyThereIsNoSound) {
    const LogCapture log(u"fernwick.sound"_s);
    PulseSoundEffects effects("org.fernwick.fernwick");

    effects.prepare();

    EXPECT_TRUE(eventually([&] {
        return log.contains(
            u"fernwick.sound: no connection to the sound server: Connection refused"_s);
    })) << log.all().toStdString();
}

TEST_F(PulseSoundEffectsTest, logsConnectionUploadAndLoss) {
    const LogCapture log(u"fernwick.sound"_s);
    ASSERT_TRUE(server_.start());
    PulseSoundEffects effects("org.fernwick.fernwick");

    effects.prepare();

    EXPECT_TRUE(eventually([&] { return log.contains(u"Tink uploaded"_s); }));
    EXPECT_TRUE(log.contains(u"connected to the sound server"_s));
    server_.kill();
    EXPECT_TRUE(eventually([&] {
        return log.contains(u"no connection to the sound server: Connection terminated"_s);
    })) << log.all().toStdString();
}

TEST_F(PulseSoundEffectsTest, reconnectsAfterTheServerWasKilledAndRestarted) {
    ASSERT_TRUE(server_.start());
    PulseSoundEffects effects("org.fernwick.fernwick");
    effects.prepare();
    ASSERT_TRUE(eventually(SoundServer::hasBothEffects));
    effects.play(SoundEffect::tink);
    server_.kill();
    for (int time = 0; time < 20; ++time) {
        EXPECT_LT(timeOf([&] { effects.play(SoundEffect::pop); }), shortTime);
        std::this_thread::sleep_for(10ms);
    }
    ASSERT_TRUE(server_.start());
    LoudspeakerRecorder recorder;

    EXPECT_TRUE(eventually([&] {
        effects.play(SoundEffect::pop);
        std::this_thread::sleep_for(200ms);
        return !recorder.sound().empty();
    }));
}

TEST_F(PulseSoundEffectsTest, doesNotBlockOnAHungServer) {
    ASSERT_TRUE(server_.start());
    server_.hang();
    auto effects = std::make_unique<PulseSoundEffects>("org.fernwick.fernwick");

    EXPECT_LT(timeOf([&] { effects->prepare(); }), shortTime);
    for (int time = 0; time < 50; ++time) {
        EXPECT_LT(timeOf([&] { effects->play(SoundEffect::pop); }), shortTime);
        std::this_thread::sleep_for(5ms);
    }
    EXPECT_LT(timeOf([&] { effects.reset(); }), shortTime);
}

TEST_F(PulseSoundEffectsTest, dropsAndLogsLateEffects) {
    const LogCapture log(u"fernwick.sound"_s);
    ASSERT_TRUE(server_.start());
    PulseSoundEffects effects("org.fernwick.fernwick");
    effects.prepare();
    ASSERT_TRUE(eventually(SoundServer::hasBothEffects));
    LoudspeakerRecorder recorder;
    server_.hang();
    for (int time = 0; time < 20; ++time) {
        EXPECT_LT(timeOf([&] { effects.play(SoundEffect::pop); }), shortTime);
        std::this_thread::sleep_for(100ms);
    }

    server_.resume();

    const double pops = energy(recordedBy(recorder)) / energy(soundWave(SoundEffect::pop));
    EXPECT_LT(pops, 10);
    EXPECT_TRUE(log.contains(u"dropped Pop: too late"_s));
}
