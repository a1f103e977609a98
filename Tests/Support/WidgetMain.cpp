#include <gtest/gtest.h>

#include <QApplication>

#include "Garden/Look/Fonts.hpp"

int main(int argc, char** argv) {
    // Without a display, as when CMake lists the tests.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    // As in the windows with names of players: texts in any script.
    Garden::provideSystemFonts();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
