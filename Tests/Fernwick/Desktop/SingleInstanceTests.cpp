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
#include "Support/LogCapture.hpp"
#include "Support/TemporaryFolder.hpp"

using Desktop::SingleInstance;
using Role = SingleInstance::Role;

namespace {

class SingleInstanceTest : public testing::Test {
protected:
    [[nodiscard]] std::filesystem::path settings() const {
        return folder_.path() / "fernwick" / "preferences.cbor";
    }

    /// Runs in a forked process: reports its role and keeps running.
    [[nodiscard]] auto start() const {
        return [this](const auto& report) {
            const SingleInstance instance(settings());
            report(static_cast<ForkedProcess::Report>(instance.role()));
            ::pause();
        };
    }

    [[nodiscard]] static Role roleOf(const ForkedProcess& process) {
        constexpr ForkedProcess::Report none = -1;
        return static_cast<Role>(process.nextReport(none));
    }

private:
    TemporaryFolder folder_;
};

}  // namespace

TEST_F(SingleInstanceTest, theFirstStartIsTheFirstInstance) {
    EXPECT_EQ(SingleInstance(settings()).role(), Role::first);
}

TEST_F(SingleInstanceTest, aSecondStartRequestsActivationOfTheFirst) {
    SingleInstance first(settings());
    const QSignalSpy requests(&first, &SingleInstance::activationRequested);
    first.listen();

    const ForkedProcess second(start());

    while (requests.empty()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    EXPECT_EQ(roleOf(second), Role::second);
    EXPECT_EQ(requests.count(), 1);
    EXPECT_EQ(requests.at(0).at(0), QByteArray());
}

TEST_F(SingleInstanceTest, passesTheActivationTokenToTheFirst) {
    SingleInstance first(settings());
    const QSignalSpy requests(&first, &SingleInstance::activationRequested);
    first.listen();
    for (const char* name : {"DESKTOP_STARTUP_ID", "XDG_ACTIVATION_TOKEN"}) {
        const EnvironmentVariable token(name, name);
        const qsizetype before = requests.count();

        const ForkedProcess second(start());

        while (requests.count() == before) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        EXPECT_EQ(requests.last().at(0), QByteArray(name));
    }
}

TEST_F(SingleInstanceTest, bringsTheFirstForwardOnWaylandOnlyWithAToken) {
    struct Case {
        const char* platform;
        const char* token;
        bool expected;
    };
    SingleInstance first(settings());
    first.listen();
    for (const auto& [platform, token, expected] :
         {Case{"xcb", nullptr, true}, Case{"wayland", "token", true},
          Case{"wayland", nullptr, false}}) {
        const EnvironmentVariable platformVariable("QT_QPA_PLATFORM", platform);
        const EnvironmentVariable tokenVariable("XDG_ACTIVATION_TOKEN", token);
        const ForkedProcess second([this](const auto& report) {
            report(SingleInstance(settings()).bringsForward() ? 1 : 0);
        });

        while (!second.hasReported()) {
            QCoreApplication::processEvents();
        }

        EXPECT_EQ(second.nextReport(-1), expected ? 1 : 0) << platform;
    }
}

TEST_F(SingleInstanceTest, doesNotBringAFirstForwardThatDoesNotRespond) {
    const SingleInstance first(settings());

    EXPECT_FALSE(SingleInstance(settings()).bringsForward());
}

TEST_F(SingleInstanceTest, handlesARequestThatArrivedBeforeListening) {
    SingleInstance first(settings());
    const QSignalSpy requests(&first, &SingleInstance::activationRequested);
    const ForkedProcess second(start());
    EXPECT_EQ(roleOf(second), Role::second);

    first.listen();
    QCoreApplication::processEvents();

    EXPECT_EQ(requests.count(), 1);
}

TEST_F(SingleInstanceTest, anInstanceThatDoesNotRespondIsStillTheFirst) {
    const SingleInstance first(settings());
    constexpr int moreThanTheBacklog = 20;
    const auto began = std::chrono::steady_clock::now();
    std::deque<ForkedProcess> starts;
    for (int time = 0; time < moreThanTheBacklog; ++time) {
        starts.emplace_back(start());
    }

    for (const ForkedProcess& process : starts) {
        EXPECT_EQ(roleOf(process), Role::second);
    }
    EXPECT_LT(std::chrono::steady_clock::now() - began, std::chrono::seconds(5));
}

TEST_F(SingleInstanceTest, aStartAfterAKillIsTheFirst) {
    for (int round = 0; round < 20; ++round) {
        ForkedProcess process(start());
        ASSERT_EQ(roleOf(process), Role::first);
        process.kill();

        EXPECT_EQ(SingleInstance(settings()).role(), Role::first);
    }
}

TEST_F(SingleInstanceTest, aStartWaitsForAnInstanceThatIsAboutToEnd) {
    std::optional<SingleInstance> leaving(settings());
    leaving->stopListening();
    ForkedProcess waiting([&](const auto& report) {
        leaving.reset();
        start()(report);
    });

    std::this_thread::sleep_for(std::chrono::milliseconds(1500));
    EXPECT_FALSE(waiting.hasReported());
    leaving.reset();

    EXPECT_EQ(roleOf(waiting), Role::first);
}

TEST_F(SingleInstanceTest, aStartWhoseRequestWasNotAcceptedBecomesTheFirstAfterTheEnd) {
    constexpr auto untilTheFirstHasStarted = std::chrono::milliseconds(50);
    // Forked before the first instance binds, or it would inherit the socket.
    const ForkedProcess waiting([&](const auto& report) {
        std::this_thread::sleep_for(untilTheFirstHasStarted);
        start()(report);
    });
    {
        SingleInstance leaving(settings());
        std::this_thread::sleep_for(3 * untilTheFirstHasStarted);
        leaving.stopListening();
    }

    EXPECT_EQ(roleOf(waiting), Role::first);
}

TEST_F(SingleInstanceTest, ofManySimultaneousStartsExactlyOneIsTheFirst) {
    constexpr int starts = 8;
    for (int round = 0; round < 3; ++round) {
        std::deque<ForkedProcess> processes;
        for (int i = 0; i < starts; ++i) {
            processes.emplace_back(start());
        }
        int first = 0;
        for (const ForkedProcess& process : processes) {
            const Role role = roleOf(process);
            ASSERT_NE(role, Role::unknown);
            first += role == Role::first ? 1 : 0;
        }
        ASSERT_EQ(first, 1);
    }
}

TEST_F(SingleInstanceTest, instancesWithOtherSettingsAreIndependent) {
    const SingleInstance first(settings());
    const TemporaryFolder elsewhere;

    EXPECT_EQ(SingleInstance(elsewhere.path() / "preferences.cbor").role(), Role::first);
}

TEST_F(SingleInstanceTest, aSymbolicLinkToTheSameSettingsIsTheSameInstance) {
    const TemporaryFolder elsewhere;
    const auto link = elsewhere.path() / "link";
    std::filesystem::create_directory_symlink(settings().parent_path().parent_path(), link);
    const SingleInstance first(settings());

    EXPECT_EQ(SingleInstance(link / "fernwick" / "preferences.cbor").role(), Role::second);
}

TEST_F(SingleInstanceTest, startsEvenIfAnotherUserHasBoundTheSocket) {
    const ForkedProcess otherUser(start());
    ASSERT_EQ(roleOf(otherUser), Role::first);
    const OtherUsers otherUsers;

    EXPECT_EQ(SingleInstance(settings()).role(), Role::unknown);
}

TEST_F(SingleInstanceTest, ignoresRequestsOfOtherUsers) {
    SingleInstance first(settings());
    const QSignalSpy requests(&first, &SingleInstance::activationRequested);
    first.listen();
    const ForkedProcess otherUser(start());
    const OtherUsers otherUsers;

    while (!otherUser.hasReported()) {
        QCoreApplication::processEvents();
    }

    EXPECT_EQ(roleOf(otherUser), Role::unknown);
    EXPECT_EQ(requests.count(), 0);
}

TEST_F(SingleInstanceTest, logsItsRoleAndRequests) {
    const LogCapture log(QStringLiteral("fernwick.instance"));
    SingleInstance first(settings());
    EXPECT_TRUE(log.contains(QStringLiteral("fernwick.instance: first instance")));

    const SingleInstance second(settings());
    EXPECT_TRUE(log.contains(QStringLiteral("second instance: the first one does not respond")));

    const ForkedProcess third(start());
    first.listen();
    while (!third.hasReported()) {
        QCoreApplication::processEvents();
    }
    EXPECT_TRUE(log.contains(QStringLiteral("activation requested by a later start")));
}

TEST_F(SingleInstanceTest, logsWhyItsRoleIsUnknown) {
    const ForkedProcess otherUser(start());
    ASSERT_EQ(roleOf(otherUser), Role::first);
    const OtherUsers otherUsers;
    const LogCapture log(QStringLiteral("fernwick.instance"));

    const SingleInstance instance(settings());

    EXPECT_TRUE(log.contains(QStringLiteral("unknown: another user has bound the socket")));
}

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
