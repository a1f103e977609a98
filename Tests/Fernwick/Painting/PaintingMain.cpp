#include <gtest/gtest.h>

#include <QGuiApplication>

// The backdrop asks the application for its layout direction. Painting needs no widgets.
int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
