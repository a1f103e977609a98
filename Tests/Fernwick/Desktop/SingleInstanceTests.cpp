#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QSignalSpy>
#include <chrono>
#include <deque>
#include <thread>

#include "Desktop/SingleInstance.hpp"
#include "Fernwick/Desktop/OtherUsers.hpp"
#include "Support/EnvironmentVariable.hpp"
#include "Support/ForkedProcess.hpp"
#include "Support/TemporaryFolder.hpp"

using Place = SingleInstance::Place;

namespace {

class SingleInstanceTest : public testing::Test {
protected:
    [[nodiscard]] std::filesystem::path settings() const {
        return folder_.path() / "fernwick" / "preferences.cbor";
    }

    /// What a start of the game does in a process of its own: it reports its place and stays.
    [[nodiscard]] auto start() const {
        return [this](const auto& report) {
            const SingleInstance game(settings());
            report(static_cast<ForkedProcess::Report>(game.place()));
            ::pause();
        };
    }

    [[nodiscard]] static Place placeOf(const ForkedProcess& game) {
        constexpr ForkedProcess::Report none = -1;
        return static_cast<Place>(game.nextReport(none));
    }

private:
    TemporaryFolder folder_;
};

}  // namespace

TEST_F(SingleInstanceTest, theFirstStartIsFirst) {
    EXPECT_EQ(SingleInstance(settings()).place(), Place::first);
}

TEST_F(SingleInstanceTest, aSecondStartIsSecondAndTheFirstIsTold) {
    SingleInstance first(settings());
    const QSignalSpy startedAgain(&first, &SingleInstance::startedAgain);
    first.answer();

    const ForkedProcess second(start());

    while (startedAgain.empty()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    EXPECT_EQ(placeOf(second), Place::second);
    EXPECT_EQ(startedAgain.count(), 1);
    EXPECT_EQ(startedAgain.at(0).at(0), QByteArray());
}

TEST_F(SingleInstanceTest, theFirstIsHandedTheTokenOfTheSecondStart) {
    SingleInstance first(settings());
    const QSignalSpy startedAgain(&first, &SingleInstance::startedAgain);
    first.answer();
    for (const char* name : {"DESKTOP_STARTUP_ID", "XDG_ACTIVATION_TOKEN"}) {
        const EnvironmentVariable token(name, name);
        const qsizetype before = startedAgain.count();

        const ForkedProcess second(start());

        while (startedAgain.count() == before) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        EXPECT_EQ(startedAgain.last().at(0), QByteArray(name));
    }
}

TEST_F(SingleInstanceTest, aStartThatCameTooEarlyIsAnsweredLater) {
    SingleInstance first(settings());
    const QSignalSpy startedAgain(&first, &SingleInstance::startedAgain);
    const ForkedProcess second(start());
    EXPECT_EQ(placeOf(second), Place::second);

    first.answer();
    QCoreApplication::processEvents();

    EXPECT_EQ(startedAgain.count(), 1);
}

TEST_F(SingleInstanceTest, aGameThatDoesNotAnswerStillKeepsOthersFromStarting) {
    const SingleInstance hung(settings());
    constexpr int moreThanCanWait = 20;
    const auto began = std::chrono::steady_clock::now();
    std::deque<ForkedProcess> starts;
    for (int time = 0; time < moreThanCanWait; ++time) {
        starts.emplace_back(start());
    }

    for (const ForkedProcess& game : starts) {
        EXPECT_EQ(placeOf(game), Place::second);
    }
    EXPECT_LT(std::chrono::steady_clock::now() - began, std::chrono::seconds(5));
}

TEST_F(SingleInstanceTest, aGameThatWasKilledStopsNoStart) {
    for (int round = 0; round < 20; ++round) {
        ForkedProcess game(start());
        ASSERT_EQ(placeOf(game), Place::first);
        game.kill();

        EXPECT_EQ(SingleInstance(settings()).place(), Place::first);
    }
}

TEST_F(SingleInstanceTest, aGameThatLeavesMakesRoomAtOnce) {
    SingleInstance leaving(settings());
    leaving.leave();

    EXPECT_EQ(SingleInstance(settings()).place(), Place::first);
}

TEST_F(SingleInstanceTest, aStartThatTheLeavingGameHadNoTimeForIsFirst) {
    constexpr auto untilTheGameIsThere = std::chrono::milliseconds(50);
    // Made before the game, or it would hold a copy of the game's address.
    const ForkedProcess waiting([&](const auto& report) {
        std::this_thread::sleep_for(untilTheGameIsThere);
        start()(report);
    });
    SingleInstance leaving(settings());
    std::this_thread::sleep_for(3 * untilTheGameIsThere);

    leaving.leave();

    EXPECT_EQ(placeOf(waiting), Place::first);
}

TEST_F(SingleInstanceTest, ofManyStartsAtOnceExactlyOneIsFirst) {
    constexpr int starts = 8;
    for (int round = 0; round < 3; ++round) {
        std::deque<ForkedProcess> games;
        for (int game = 0; game < starts; ++game) {
            games.emplace_back(start());
        }
        int first = 0;
        for (const ForkedProcess& game : games) {
            const Place place = placeOf(game);
            ASSERT_NE(place, Place::unknown);
            first += place == Place::first ? 1 : 0;
        }
        ASSERT_EQ(first, 1);
    }
}

TEST_F(SingleInstanceTest, gamesOverOtherSettingsStayApart) {
    const SingleInstance game(settings());
    const TemporaryFolder elsewhere;

    EXPECT_EQ(SingleInstance(elsewhere.path() / "preferences.cbor").place(), Place::first);
}

TEST_F(SingleInstanceTest, theSameSettingsByAnotherPathAreTheSameGame) {
    const TemporaryFolder elsewhere;
    const auto link = elsewhere.path() / "link";
    std::filesystem::create_directory_symlink(settings().parent_path().parent_path(), link);
    const SingleInstance game(settings());

    EXPECT_EQ(SingleInstance(link / "fernwick" / "preferences.cbor").place(), Place::second);
}

TEST_F(SingleInstanceTest, aStrangerOnTheAddressStopsNoStart) {
    const ForkedProcess stranger(start());
    ASSERT_EQ(placeOf(stranger), Place::first);
    const OtherUsers all;

    EXPECT_EQ(SingleInstance(settings()).place(), Place::unknown);
}

TEST_F(SingleInstanceTest, aStrangerWhoCallsIsNotListenedTo) {
    SingleInstance first(settings());
    const QSignalSpy startedAgain(&first, &SingleInstance::startedAgain);
    first.answer();
    const ForkedProcess stranger(start());
    const OtherUsers all;

    while (!stranger.hasReported()) {
        QCoreApplication::processEvents();
    }

    EXPECT_EQ(placeOf(stranger), Place::unknown);
    EXPECT_EQ(startedAgain.count(), 0);
}

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
