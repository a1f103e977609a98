#include <gtest/gtest.h>

#include <QApplication>

// Widgets need a QApplication. The offscreen platform needs no display.
int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
