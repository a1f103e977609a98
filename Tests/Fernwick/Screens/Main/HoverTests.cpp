#include <QMenuBar>
#include <QTest>
#include <QWindow>

#include "Fernwick/Window/WindowTest.hpp"
#include "Screens/Scores/HighScoresView.hpp"
#include "Screens/Scores/NameField.hpp"

namespace {

/// What the window answers to the pointer alone.
class Hover : public WindowTest {
protected:
    Hover() { leaveFullScreen(); }

    void pointAt(const QWidget& widget) {
        QTest::mouseMove(window.windowHandle(), widget.mapTo(&window, widget.rect().center()));
        settle();
    }

    void pointAtNothing() {
        QTest::mouseMove(window.windowHandle(), QPoint(20, window.height() / 2));
        settle();
    }

    /// Whether `widget` looks different under the pointer.
    bool answers(QWidget& widget) {
        pointAtNothing();
        const QImage resting = widget.grab().toImage();
        pointAt(widget);
        const bool differs = widget.grab().toImage() != resting;
        pointAtNothing();
        EXPECT_EQ(widget.grab().toImage(), resting);
        return differs;
    }

    void expectAnswersIn(const QWidget& root) {
        int asked = 0;
        for (auto* control : root.findChildren<QAbstractButton*>()) {
            // What is chosen already has nothing to promise.
            const bool chosen = control->isCheckable() && control->isChecked();
            if (control->isVisible() && !chosen) {
                SCOPED_TRACE(Screen::nameOf(control).toStdString());
                EXPECT_EQ(answers(*control), control->isEnabled());
                ++asked;
            }
        }
        EXPECT_GT(asked, 0);
    }
};

}  // namespace

TEST_F(Hover, everyControlThatCanBePressedAnswersInEveryState) {
    for (const Session::Phase state : everyState) {
        SCOPED_TRACE(state);
        arriveAt(state);
        expectAnswersIn(window);
    }
}

TEST_F(Hover, everyControlOfTheSheetAnswers) {
    session.openScores();
    settle();
    ASSERT_TRUE(QTest::qWaitFor([this] { return isStill(); }));

    expectAnswersIn(*window.findChild<HighScoresView*>());
}

TEST_F(Hover, whatLiesUnderTheSheetDoesNot) {
    session.openScores();
    settle();
    ASSERT_TRUE(QTest::qWaitFor([this] { return isStill(); }));

    EXPECT_FALSE(answers(*button("Let's grow")));
    EXPECT_FALSE(answers(*button("Toggle sound effects")));
}

TEST_F(Hover, theMenuTitlesAnswer) {
    auto& bar = *window.findChild<QMenuBar*>();
    const QImage resting = bar.grab().toImage();
    for (QAction* title : bar.actions()) {
        QTest::mouseMove(window.windowHandle(),
                         bar.mapTo(&window, bar.actionGeometry(title).center()));
        settle();
        EXPECT_NE(bar.grab().toImage(), resting) << title->text().toStdString();
    }
}

TEST_F(Hover, theNameFieldPromisesWriting) {
    endRunAwaitingName();

    EXPECT_EQ(window.findChild<NameField*>()->cursor().shape(), Qt::IBeamCursor);
}
