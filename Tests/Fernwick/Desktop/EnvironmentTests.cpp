#include <gtest/gtest.h>
#include <sys/socket.h>

#include <QByteArray>
#include <QString>
#include <QSysInfo>
#include <fstream>

#include "Desktop/Environment.hpp"
#include "Posix/LocalSocket.hpp"
#include "Support/EnvironmentVariable.hpp"
#include "Support/TemporaryFolder.hpp"

namespace {

class EnvironmentTest : public testing::Test {
protected:
    /// The variable after `prepareEnvironment`; std::nullopt if it is unset.
    [[nodiscard]] static std::optional<std::string> prepared(const char* name) {
        Desktop::prepareEnvironment();
        const char* value = std::getenv(name);
        return value == nullptr ? std::nullopt : std::optional<std::string>(value);
    }

    [[nodiscard]] std::filesystem::path folder() const { return folder_.path(); }

private:
    TemporaryFolder folder_;
    EnvironmentVariable runtimeFolder_{"XDG_RUNTIME_DIR", folder_.path().c_str()};
    EnvironmentVariable sessionBus_{"DBUS_SESSION_BUS_ADDRESS", nullptr};
    EnvironmentVariable sessionManager_{"SESSION_MANAGER", nullptr};
    EnvironmentVariable fontLanguage_{"FC_LANG", nullptr};
    EnvironmentVariable allLocales_{"LC_ALL", nullptr};
    EnvironmentVariable characterLocale_{"LC_CTYPE", nullptr};
    EnvironmentVariable locale_{"LANG", nullptr};
    EnvironmentVariable pulseLog_{"PULSE_LOG", nullptr};
    EnvironmentVariable pulseLogSyslog_{"PULSE_LOG_SYSLOG", nullptr};
    EnvironmentVariable token_{"XDG_ACTIVATION_TOKEN", nullptr};
    EnvironmentVariable platform_{"QT_QPA_PLATFORM", nullptr};
    EnvironmentVariable sessionType_{"XDG_SESSION_TYPE", nullptr};
    EnvironmentVariable waylandDisplay_{"WAYLAND_DISPLAY", nullptr};
    EnvironmentVariable waylandSocket_{"WAYLAND_SOCKET", nullptr};
};

/// A socket on which a session manager could listen.
class Listener {
public:
    explicit Listener(const QByteArray& name) {
        const Posix::LocalAddress address(name);
        EXPECT_EQ(::bind(socket_.number(), address.get(), address.size()), 0);
        EXPECT_EQ(::listen(socket_.number(), 16), 0);
    }

private:
    Posix::FileDescriptor socket_ = Posix::localSocket(SOCK_STREAM);
};

std::string onThisMachine(const std::string& transport, const std::string& name) {
    return transport + '/' + QSysInfo::machineHostName().toStdString() + ':' + name;
}

}  // namespace

TEST_F(EnvironmentTest, disablesTheSessionBusWhenThereIsNone) {
    EXPECT_EQ(prepared("DBUS_SESSION_BUS_ADDRESS"), "disabled:");
}

TEST_F(EnvironmentTest, disablesTheSessionBusWithoutARuntimeFolder) {
    const EnvironmentVariable unset("XDG_RUNTIME_DIR", nullptr);

    EXPECT_EQ(prepared("DBUS_SESSION_BUS_ADDRESS"), "disabled:");
}

TEST_F(EnvironmentTest, keepsTheAddressOfTheSessionBus) {
    const EnvironmentVariable address("DBUS_SESSION_BUS_ADDRESS", "unix:path=/somewhere");

    EXPECT_EQ(prepared("DBUS_SESSION_BUS_ADDRESS"), "unix:path=/somewhere");
}

TEST_F(EnvironmentTest, leavesTheAddressUnsetWhenTheRuntimeFolderHasTheBus) {
    std::ofstream(folder() / "bus").flush();

    EXPECT_EQ(prepared("DBUS_SESSION_BUS_ADDRESS"), std::nullopt);
}

TEST_F(EnvironmentTest, removesASessionManagerThatHasExited) {
    const std::string address = onThisMachine("local", folder() / "socket");
    const EnvironmentVariable stale("SESSION_MANAGER", address.c_str());

    EXPECT_EQ(prepared("SESSION_MANAGER"), std::nullopt);
}

TEST_F(EnvironmentTest, removesASessionManagerOnAnotherMachine) {
    const Listener listener(QByteArray::fromStdString(folder() / "socket"));
    const std::string address = "local/elsewhere:" + (folder() / "socket").native();
    const EnvironmentVariable remote("SESSION_MANAGER", address.c_str());

    EXPECT_EQ(prepared("SESSION_MANAGER"), std::nullopt);
}

TEST_F(EnvironmentTest, removesAMalformedSessionManager) {
    for (const std::string& malformed :
         {std::string("nonsense"), onThisMachine("local", ""),
          onThisMachine("local", std::string(200, 'x')), onThisMachine("tcp", "4711")}) {
        const EnvironmentVariable address("SESSION_MANAGER", malformed.c_str());

        EXPECT_EQ(prepared("SESSION_MANAGER"), std::nullopt) << malformed;
    }
}

TEST_F(EnvironmentTest, keepsASessionManagerThatListens) {
    const std::string name = folder() / "socket";
    const Listener listener(QByteArray::fromStdString(name));
    for (const std::string& address : {onThisMachine("local", name), onThisMachine("unix", name),
                                       "tcp/elsewhere:4711," + onThisMachine("unix", name)}) {
        const EnvironmentVariable variable("SESSION_MANAGER", address.c_str());

        EXPECT_EQ(prepared("SESSION_MANAGER"), address);
    }
}

TEST_F(EnvironmentTest, keepsASessionManagerThatListensOnAnAbstractSocket) {
    const QByteArray name = QByteArray::fromStdString(folder() / "socket");
    const Listener listener('\0' + name);
    const std::string address = onThisMachine("local", '@' + name.toStdString());
    const EnvironmentVariable variable("SESSION_MANAGER", address.c_str());

    EXPECT_EQ(prepared("SESSION_MANAGER"), address);
}

TEST_F(EnvironmentTest, replacesALocaleThatFontconfigCannotParse) {
    for (const char* name : {"FC_LANG", "LC_ALL", "LC_CTYPE", "LANG"}) {
        const EnvironmentVariable fontLanguage("FC_LANG", nullptr);
        const EnvironmentVariable locale(name, "UTF-8");

        EXPECT_EQ(prepared("FC_LANG"), "en") << name;
    }
}

TEST_F(EnvironmentTest, leavesFontconfigAValidLocale) {
    for (const char* valid : {"", "C", "C.UTF-8", "POSIX", "de", "de_DE", "de_DE.UTF-8",
                              "ca_ES@valencia", "haw_US", "es_419"}) {
        const EnvironmentVariable locale("LANG", valid);

        EXPECT_EQ(prepared("FC_LANG"), std::nullopt) << valid;
    }
}

TEST_F(EnvironmentTest, takesTheLocaleInTheOrderOfFontconfig) {
    const EnvironmentVariable overridden("LANG", "UTF-8");
    const EnvironmentVariable locale("LC_ALL", "de_DE.UTF-8");

    EXPECT_EQ(prepared("FC_LANG"), std::nullopt);
}

TEST_F(EnvironmentTest, choosesTheXServerIfLibwaylandHasNoFolderForItsSocket) {
    for (const char* folder : {static_cast<const char*>(nullptr), "", "run"}) {
        const EnvironmentVariable runtimeFolder("XDG_RUNTIME_DIR", folder);
        const EnvironmentVariable platform("QT_QPA_PLATFORM", nullptr);
        EXPECT_EQ(prepared("QT_QPA_PLATFORM"), std::nullopt);
        const EnvironmentVariable display("WAYLAND_DISPLAY", "wayland-0");

        EXPECT_EQ(prepared("QT_QPA_PLATFORM"), "xcb");
    }
    const EnvironmentVariable runtimeFolder("XDG_RUNTIME_DIR", nullptr);
    const EnvironmentVariable sessionType("XDG_SESSION_TYPE", "wayland");
    const EnvironmentVariable platform("QT_QPA_PLATFORM", nullptr);

    EXPECT_EQ(prepared("QT_QPA_PLATFORM"), "xcb");
}

TEST_F(EnvironmentTest, leavesTheChoiceOfThePlatformToQtIfWaylandMayBeThere) {
    const EnvironmentVariable sessionType("XDG_SESSION_TYPE", "wayland");
    EXPECT_EQ(prepared("QT_QPA_PLATFORM"), std::nullopt);

    const EnvironmentVariable runtimeFolder("XDG_RUNTIME_DIR", nullptr);
    {
        const EnvironmentVariable display("WAYLAND_DISPLAY", "/run/wayland-0");
        EXPECT_EQ(prepared("QT_QPA_PLATFORM"), std::nullopt);
    }
    {
        const EnvironmentVariable socket("WAYLAND_SOCKET", "3");
        EXPECT_EQ(prepared("QT_QPA_PLATFORM"), std::nullopt);
    }
    const EnvironmentVariable platform("QT_QPA_PLATFORM", "offscreen");
    EXPECT_EQ(prepared("QT_QPA_PLATFORM"), "offscreen");
}

TEST_F(EnvironmentTest, sendsMessagesOfLibpulseToSyslog) {
    EXPECT_EQ(prepared("PULSE_LOG_SYSLOG"), "1");
}

TEST_F(EnvironmentTest, leavesMessagesOfLibpulseOnStderrWhenTheUserAsksForThem) {
    const EnvironmentVariable asked("PULSE_LOG", "4");

    EXPECT_EQ(prepared("PULSE_LOG_SYSLOG"), std::nullopt);
}

TEST_F(EnvironmentTest, keepsTheActivationToken) {
    EXPECT_EQ(prepared("XDG_ACTIVATION_TOKEN"), std::nullopt);
    const EnvironmentVariable token("XDG_ACTIVATION_TOKEN", "token");

    EXPECT_EQ(prepared("XDG_ACTIVATION_TOKEN"), "token");
}

TEST_F(EnvironmentTest, keepsEverythingElse) {
    const EnvironmentVariable other("FERNWICK_TEST_VARIABLE", "kept");

    EXPECT_EQ(prepared("FERNWICK_TEST_VARIABLE"), "kept");
}

TEST(UsesWayland, dependsOnTheVariablesThatQtChoosesByACompositor) {
    struct Case {
        const char* platform;
        const char* display;
        const char* session;
        bool expected;
    };
    for (const auto& [platform, display, session, expected] : {
             Case{nullptr, nullptr, nullptr, false},
             Case{nullptr, "wayland-0", nullptr, true},
             Case{nullptr, nullptr, "wayland", true},
             Case{nullptr, nullptr, "x11", false},
             Case{"xcb", "wayland-0", "wayland", false},
             Case{"wayland-egl", nullptr, nullptr, true},
         }) {
        const EnvironmentVariable first("QT_QPA_PLATFORM", platform);
        const EnvironmentVariable second("WAYLAND_DISPLAY", display);
        const EnvironmentVariable third("XDG_SESSION_TYPE", session);

        EXPECT_EQ(Desktop::usesWayland(), expected);
    }
}
