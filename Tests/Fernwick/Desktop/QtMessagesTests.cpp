#include <gtest/gtest.h>

#include <QLoggingCategory>

#include "Desktop/QtMessages.hpp"
#include "Support/EnvironmentVariable.hpp"

namespace {

class QtMessagesTest : public testing::Test {
protected:
    ~QtMessagesTest() override { QLoggingCategory::setFilterRules(QString()); }

    /// Returns everything written to stderr when Qt prints `message` while it opens a display,
    /// which it does.
    static std::string printed(const char* message, const char* categoryName = "default") {
        Desktop::filterQtMessages();
        const QLoggingCategory category(categoryName);
        testing::internal::CaptureStderr();
        qCWarning(category, "%s", message);
        Desktop::showHeldQtMessages();
        qInstallMessageHandler(nullptr);
        return testing::internal::GetCapturedStderr();
    }

    /// Qt's messages when it can open no display, the last of which aborts.
    static void openNoDisplay(std::initializer_list<const char*> messages) {
        Desktop::filterQtMessages();
        for (const char* message : messages) {
            qWarning("%s", message);
        }
        qFatal(
            "This application failed to start because no Qt platform plugin could be "
            "initialized. Reinstalling the application may fix this problem.\n");
    }

private:
    EnvironmentVariable rules_{"QT_LOGGING_RULES", nullptr};
    EnvironmentVariable platform_{"QT_QPA_PLATFORM", nullptr};
    EnvironmentVariable display_{"DISPLAY", nullptr};
    EnvironmentVariable waylandDisplay_{"WAYLAND_DISPLAY", nullptr};
};

const testing::ExitedWithCode exitsWithStatus1(1);

}  // namespace

TEST_F(QtMessagesTest, hidesHarmlessMessages) {
    EXPECT_EQ(printed("QStandardPaths: XDG_RUNTIME_DIR not set, defaulting to '/tmp'"), "");
    EXPECT_EQ(printed("  OpenType support missing for \"Inter\", script 11"), "");
    EXPECT_EQ(printed("Failed to create wl_display (No such file or directory)"), "");
    EXPECT_EQ(printed("failed to create compose table", "qt.xkb.compose"), "");
    EXPECT_EQ(printed("OpenType support missing for \"Inter\", script 11", "qt.text.font.db"), "");
    EXPECT_EQ(printed("Could not find accessible on path: \"/1\"", "qt.accessibility.atspi"), "");
    EXPECT_EQ(printed("Detected locale \"C\" with character encoding \"ANSI_X3.4-1968\", which is "
                      "not UTF-8.\nQt depends on a UTF-8 locale, and has switched to \"C.UTF-8\"."),
              "");
}

TEST_F(QtMessagesTest, showsEverythingElse) {
    for (const char* message : {"could not connect to display :0", "QObject::connect: no signal"}) {
        EXPECT_NE(printed(message, "qt.qpa.xcb").find(message), std::string::npos);
        EXPECT_NE(printed(message).find(message), std::string::npos);
    }
}

TEST_F(QtMessagesTest, showsMessagesWithoutACategoryWhenTheUserSetsLoggingRules) {
    const EnvironmentVariable rules("QT_LOGGING_RULES", "fernwick.*=true");

    EXPECT_NE(printed("QStandardPaths: XDG_RUNTIME_DIR not set"), "");
}

TEST_F(QtMessagesTest, showsMessagesAboutOneDisplayAfterAnotherWasOpened) {
    EXPECT_EQ(printed("could not connect to display :0", "qt.qpa.xcb"),
              "qt.qpa.xcb: could not connect to display :0\n");
    EXPECT_EQ(printed("Could not find the Qt platform plugin \"other\" in \"\"", "qt.qpa.plugin"),
              "qt.qpa.plugin: Could not find the Qt platform plugin \"other\" in \"\"\n");
}

TEST_F(QtMessagesTest, showsMessagesAboutADisplayOnceItIsOpen) {
    Desktop::filterQtMessages();
    Desktop::showHeldQtMessages();
    testing::internal::CaptureStderr();

    qWarning("could not connect to display :0");
    qInstallMessageHandler(nullptr);

    EXPECT_EQ(testing::internal::GetCapturedStderr(), "could not connect to display :0\n");
}

TEST_F(QtMessagesTest, exitsWithOneLineWhenThereIsNoDisplay) {
    EXPECT_EXIT(openNoDisplay({"could not connect to display "}), exitsWithStatus1,
                "^fernwick: cannot open a display: DISPLAY is not set, "
                "WAYLAND_DISPLAY is not set\n$");
}

TEST_F(QtMessagesTest, namesTheDisplaysThatCannotBeOpened) {
    const EnvironmentVariable display("DISPLAY", ":4711");
    const EnvironmentVariable waylandDisplay("WAYLAND_DISPLAY", "");

    EXPECT_EXIT(openNoDisplay({"Failed to create wl_display (No such file or directory)",
                               "could not connect to display :4711",
                               "From 6.5.0, xcb-cursor0 or libxcb-cursor0 is needed to load the Qt "
                               "xcb platform plugin."}),
                exitsWithStatus1,
                "^fernwick: cannot open a display: DISPLAY=\":4711\", WAYLAND_DISPLAY=\"\"\n$");
}

TEST_F(QtMessagesTest, namesAPlatformPluginThatDoesNotExist) {
    const EnvironmentVariable platform("QT_QPA_PLATFORM", "none");

    EXPECT_EXIT(openNoDisplay({"Could not find the Qt platform plugin \"none\" in \"\""}),
                exitsWithStatus1,
                "^fernwick: cannot find the Qt platform plugin: QT_QPA_PLATFORM=\"none\", "
                "DISPLAY is not set, WAYLAND_DISPLAY is not set\n$");
}

TEST_F(QtMessagesTest, exitsWithItsOwnLineAfterThoseOfQtWhenTheUserSetsLoggingRules) {
    const EnvironmentVariable rules("QT_LOGGING_RULES", "fernwick.*=true");

    EXPECT_EXIT(openNoDisplay({"could not connect to display "}), exitsWithStatus1,
                "^could not connect to display \nfernwick: cannot open a display: [^\n]*\n$");
}

TEST_F(QtMessagesTest, showsMessagesAboutADisplayBeforeAnotherFatalMessage) {
    EXPECT_DEATH(
        {
            Desktop::filterQtMessages();
            qWarning("Failed to create wl_display (No such file or directory)");
            qWarning("could not connect to display :0");
            qFatal("something else");
        },
        "wl_display \\(No such file or directory\\)\ncould not connect to display :0\n"
        "something else");
}
