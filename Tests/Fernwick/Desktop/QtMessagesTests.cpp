#include <gtest/gtest.h>

#include <QLoggingCategory>

#include "Desktop/QtMessages.hpp"
#include "Support/EnvironmentVariable.hpp"

namespace {

class QtMessagesTest : public testing::Test {
protected:
    ~QtMessagesTest() override { QLoggingCategory::setFilterRules(QString()); }

    /// Returns everything written to stderr when Qt prints `message`.
    static std::string printed(const char* message, const char* categoryName = "default") {
        Desktop::filterQtMessages();
        const QLoggingCategory category(categoryName);
        testing::internal::CaptureStderr();
        qCWarning(category, "%s", message);
        qInstallMessageHandler(nullptr);
        return testing::internal::GetCapturedStderr();
    }

private:
    EnvironmentVariable rules_{"QT_LOGGING_RULES", nullptr};
};

}  // namespace

TEST_F(QtMessagesTest, hidesHarmlessMessages) {
    EXPECT_EQ(printed("QStandardPaths: XDG_RUNTIME_DIR not set, defaulting to '/tmp'"), "");
    EXPECT_EQ(printed("  OpenType support missing for \"Inter\", script 11"), "");
    EXPECT_EQ(printed("Failed to create wl_display (No such file or directory)"), "");
    EXPECT_EQ(printed("failed to create compose table", "qt.xkb.compose"), "");
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

TEST_F(QtMessagesTest, saysThatThereIsNoWaylandDisplayBeforeAborting) {
    EXPECT_DEATH(
        {
            Desktop::filterQtMessages();
            qWarning("Failed to create wl_display (No such file or directory)");
            qFatal("no Qt platform plugin could be initialized");
        },
        "wl_display \\(No such file or directory\\)\n(.|\n)*no Qt platform plugin");
}
