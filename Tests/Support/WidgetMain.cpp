#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
    // Also when run by hand or asked for its list of tests, with no display about.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
