#include <QMenuBar>
#include <QTest>
#include <QWindow>

#include "Fernwick/Window/WindowTest.hpp"
#include "Screens/Scores/HighScoresView.hpp"
#include "Screens/Scores/NameField.hpp"

namespace {

class Hover : public WindowTest {
protected:
    Hover() { leaveFullScreen(); }

    void pointAt(const QWidget& widget) {
        QTest::mouseMove(window.windowHandle(), widget.mapTo(&window, widget.rect().center()));
        processEvents();
    }

    void pointAtBackground() {
        QTest::mouseMove(window.windowHandle(), QPoint(20, window.height() / 2));
        processEvents();
    }

    /// Whether `widget` is drawn differently while the pointer is over it.
    bool highlights(QWidget& widget) {
        pointAtBackground();
        const QImage resting = widget.grab().toImage();
        pointAt(widget);
        const bool differs = widget.grab().toImage() != resting;
        pointAtBackground();
        EXPECT_EQ(widget.grab().toImage(), resting);
        return differs;
    }

    void expectHighlightsIn(const QWidget& root) {
        int checked = 0;
        for (auto* control : root.findChildren<QAbstractButton*>()) {
            // A choice that is already selected does not highlight.
            const bool selected = control->isCheckable() && control->isChecked();
            if (control->isVisible() && !selected) {
                SCOPED_TRACE(Screen::nameOf(control).toStdString());
                EXPECT_EQ(highlights(*control), control->isEnabled());
                ++checked;
            }
        }
        EXPECT_GT(checked, 0);
    }
};

}  // namespace

TEST_F(Hover, highlightsEveryEnabledControlInEveryPhase) {
    inEveryPhase([this](Session::Phase) { expectHighlightsIn(window); });
}

TEST_F(Hover, highlightsEveryControlOfTheScoreSheet) {
    openScores();
    waitForAnimations();

    expectHighlightsIn(child<HighScoresView>());
}

TEST_F(Hover, doesNotHighlightControlsBehindTheScoreSheet) {
    openScores();
    waitForAnimations();

    EXPECT_FALSE(highlights(*button("Let's grow")));
    EXPECT_FALSE(highlights(*button("Toggle sound effects")));
}

TEST_F(Hover, highlightsTheMenuTitles) {
    auto& bar = child<QMenuBar>();
    const QImage resting = bar.grab().toImage();
    for (QAction* title : bar.actions()) {
        QTest::mouseMove(window.windowHandle(),
                         bar.mapTo(&window, bar.actionGeometry(title).center()));
        processEvents();
        EXPECT_NE(bar.grab().toImage(), resting) << title->text().toStdString();
    }
}

TEST_F(Hover, showsATextCursorOverTheNameField) {
    playToNameEntry();

    EXPECT_EQ(child<NameField>().cursor().shape(), Qt::IBeamCursor);
}
