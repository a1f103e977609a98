#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <numeric>

#include "Fernwick/Sound/LoudspeakerRecorder.hpp"
#include "Fernwick/Sound/SoundServer.hpp"
#include "Sound/PulseSoundEffects.hpp"
#include "Sound/SoundWave.hpp"

namespace fs = std::filesystem;
using namespace std::chrono_literals;

namespace {

using Wave = std::vector<std::int16_t>;

/// Far below the seconds a program waits that waits for a server, far above a busy machine's
/// hiccups.
constexpr auto atOnce = 100ms;

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

/// Waits for a sound and for the silence after it.
Wave heard(LoudspeakerRecorder& recorder) {
    constexpr std::size_t pause = soundWaveRate / 5;
    EXPECT_TRUE(
        eventually([&] { return !recorder.sound().empty() && recorder.endsInSilence(pause); }));
    return recorder.sound();
}

/// The sleeps of the thread that talks to the server; nothing when there is no such thread.
std::optional<long> sleepsOfTheThread() {
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

TEST_F(PulseSoundEffectsTest, eachEffectComesOutOfTheLoudspeakerAsItWasDrawnUp) {
    ASSERT_TRUE(server_.start());
    PulseSoundEffects effects("org.fernwick.fernwick");
    effects.prepare();
    ASSERT_TRUE(eventually(SoundServer::hasBothEffects));
    for (const SoundEffect effect : {SoundEffect::pop, SoundEffect::tink}) {
        LoudspeakerRecorder recorder;

        effects.play(effect);

        const Wave expected = withoutSilence(soundWave(effect));
        const Wave played = heard(recorder);
        EXPECT_EQ(played.size(), expected.size());
        EXPECT_LE(greatestDifference(played, expected), 2);
    }
}

TEST_F(PulseSoundEffectsTest, mixersShowTheGameUnderTheNameOfItsInstalledIcon) {
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
    const Wave played = heard(recorder);
    EXPECT_LT(played.size(), pop.size() + withoutSilence(tink).size() - pop.size() / 4);
    EXPECT_NEAR(energy(played) / (energy(pop) + energy(tink)), 1, 0.25);
}

TEST_F(PulseSoundEffectsTest, theFirstPlayConnectsByItself) {
    ASSERT_TRUE(server_.start());
    PulseSoundEffects effects("org.fernwick.fernwick");

    effects.play(SoundEffect::pop);

    EXPECT_TRUE(eventually(SoundServer::hasBothEffects));
}

TEST_F(PulseSoundEffectsTest, nothingIsStartedBeforeTheFirstEffect) {
    const PulseSoundEffects effects("org.fernwick.fernwick");

    EXPECT_EQ(sleepsOfTheThread(), std::nullopt);
}

TEST_F(PulseSoundEffectsTest, theThreadSleepsBetweenEffects) {
    ASSERT_TRUE(server_.start());
    PulseSoundEffects effects("org.fernwick.fernwick");
    effects.prepare();
    ASSERT_TRUE(eventually(SoundServer::hasBothEffects));
    effects.play(SoundEffect::pop);
    std::this_thread::sleep_for(500ms);
    const auto before = sleepsOfTheThread();
    ASSERT_NE(before, std::nullopt);

    std::this_thread::sleep_for(1500ms);

    EXPECT_EQ(sleepsOfTheThread(), before);
}

TEST_F(PulseSoundEffectsTest, withoutAServerNothingIsWaitedForOrPrinted) {
    testing::internal::CaptureStderr();
    testing::internal::CaptureStdout();
    {
        PulseSoundEffects effects("org.fernwick.fernwick");
        EXPECT_LT(timeOf([&] { effects.prepare(); }), atOnce);
        for (int time = 0; time < 20; ++time) {
            EXPECT_LT(timeOf([&] { effects.play(SoundEffect::pop); }), atOnce);
            std::this_thread::sleep_for(10ms);
        }
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST_F(PulseSoundEffectsTest, aRuntimeFolderOfAnotherUserIsNotComplainedAbout) {
    // The superuser can give a folder away; everyone else finds one of the superuser's.
    constexpr uid_t nobody = 65534;
    const bool superuser = ::geteuid() == 0;
    ASSERT_TRUE(!superuser || ::chown(server_.folder().c_str(), nobody, nobody) == 0);
    const EnvironmentVariable runtimeFolder("XDG_RUNTIME_DIR",
                                            superuser ? server_.folder().c_str() : "/usr");
    const EnvironmentVariable noAddress("PULSE_SERVER", nullptr);
    testing::internal::CaptureStderr();
    {
        PulseSoundEffects effects("org.fernwick.fernwick");
        effects.play(SoundEffect::pop);
        std::this_thread::sleep_for(200ms);
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(PulseSoundEffectsTest, aServerThatIsKilledInPlayIsFoundAgainWhenItIsBack) {
    ASSERT_TRUE(server_.start());
    PulseSoundEffects effects("org.fernwick.fernwick");
    effects.prepare();
    ASSERT_TRUE(eventually(SoundServer::hasBothEffects));
    effects.play(SoundEffect::tink);
    server_.kill();
    for (int time = 0; time < 20; ++time) {
        EXPECT_LT(timeOf([&] { effects.play(SoundEffect::pop); }), atOnce);
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

TEST_F(PulseSoundEffectsTest, aServerThatHangsFromTheStartIsNotWaitedFor) {
    ASSERT_TRUE(server_.start());
    server_.hang();
    auto effects = std::make_unique<PulseSoundEffects>("org.fernwick.fernwick");

    EXPECT_LT(timeOf([&] { effects->prepare(); }), atOnce);
    for (int time = 0; time < 50; ++time) {
        EXPECT_LT(timeOf([&] { effects->play(SoundEffect::pop); }), atOnce);
        std::this_thread::sleep_for(5ms);
    }
    EXPECT_LT(timeOf([&] { effects.reset(); }), atOnce);
}

TEST_F(PulseSoundEffectsTest, whatCouldOnlyBeHeardLateIsNotPlayed) {
    ASSERT_TRUE(server_.start());
    PulseSoundEffects effects("org.fernwick.fernwick");
    effects.prepare();
    ASSERT_TRUE(eventually(SoundServer::hasBothEffects));
    LoudspeakerRecorder recorder;
    server_.hang();
    for (int time = 0; time < 20; ++time) {
        EXPECT_LT(timeOf([&] { effects.play(SoundEffect::pop); }), atOnce);
        std::this_thread::sleep_for(100ms);
    }

    server_.goOn();

    const double popsHeard = energy(heard(recorder)) / energy(soundWave(SoundEffect::pop));
    EXPECT_LT(popsHeard, 10);
}
