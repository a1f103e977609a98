#include <QApplication>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "Fernwick/Window/Keyboard.hpp"
#include "Fernwick/Window/WindowTest.hpp"
#include "Garden/Widgets/IconButton.hpp"

namespace {

enum class Means { click, returnKey };

/// The marks at the right of the top band.
class WindowMarks : public WindowTest, public ::testing::WithParamInterface<Means> {
protected:
    WindowMarks() { leaveFullScreen(); }

    [[nodiscard]] Garden::IconButton* mark(const QString& name) const {
        return Screen::find<Garden::IconButton>(window, name);
    }

    void work(const QString& name) {
        ASSERT_NE(mark(name), nullptr) << name.toStdString();
        if (GetParam() == Means::click) {
            QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {},
                              mark(name)->mapTo(&window, mark(name)->rect().center()));
        } else {
            ASSERT_TRUE(Keyboard::tabTo(window, name));
            Keyboard::press(window, Qt::Key_Return);
        }
        settle();
    }

    [[nodiscard]] bool becomes(Qt::WindowState state, bool wanted) const {
        return QTest::qWaitFor(
            [this, state, wanted] { return window.windowState().testFlag(state) == wanted; });
    }
};

INSTANTIATE_TEST_SUITE_P(By, WindowMarks, ::testing::Values(Means::click, Means::returnKey),
                         [](const auto& means) {
                             return means.param == Means::click ? "Click" : "Return";
                         });

const QStringList marks{"Minimise", "Maximise", "Close"};

}  // namespace

TEST_P(WindowMarks, areThereOutOfFullScreenOnly) {
    for (const QString& name : marks) {
        EXPECT_NE(mark(name), nullptr) << name.toStdString();
    }

    window.showFullScreen();
    waitForFullScreen(true);
    for (const QString& name : marks) {
        EXPECT_EQ(mark(name), nullptr) << name.toStdString();
    }

    leaveFullScreen();
    for (const QString& name : marks) {
        EXPECT_NE(mark(name), nullptr) << name.toStdString();
    }
}

TEST_P(WindowMarks, standAtTheRightOfTheBandInTheirOrder) {
    int right = 0;
    for (const QString& name : marks) {
        const QRect place(mark(name)->mapTo(&window, QPoint()), mark(name)->size());
        EXPECT_GT(place.left(), std::max(right, window.width() / 2));
        EXPECT_LT(place.bottom(), 46);
        right = place.right();
    }
    EXPECT_EQ(right + 1, window.width() - 38);
}

TEST_P(WindowMarks, minimise) {
    work("Minimise");

    EXPECT_TRUE(becomes(Qt::WindowMinimized, true));
}

TEST_P(WindowMarks, maximiseAndBringBack) {
    const QSize before = window.size();
    EXPECT_EQ(mark("Maximise")->icon(), Garden::Icon::windowMaximize);

    work("Maximise");
    ASSERT_TRUE(becomes(Qt::WindowMaximized, true));
    EXPECT_EQ(mark("Maximise")->icon(), Garden::Icon::windowRestore);

    work("Maximise");
    ASSERT_TRUE(becomes(Qt::WindowMaximized, false));
    EXPECT_EQ(mark("Maximise")->icon(), Garden::Icon::windowMaximize);
    EXPECT_TRUE(QTest::qWaitFor([this, before] { return window.size() == before; }));
}

TEST_P(WindowMarks, endTheProgram) {
    QTimer::singleShot(0, &window, [this] { work("Close"); });
    QTimer::singleShot(5000, &window, [] { QCoreApplication::exit(1); });

    EXPECT_EQ(QApplication::exec(), 0);
}

TEST_P(WindowMarks, workInEveryState) {
    for (const Session::Phase state : everyState) {
        SCOPED_TRACE(state);
        arriveAt(state);
        work("Maximise");
        EXPECT_TRUE(becomes(Qt::WindowMaximized, true));
        work("Maximise");
        EXPECT_TRUE(becomes(Qt::WindowMaximized, false));
        EXPECT_EQ(session.phase(), state);
    }
}
