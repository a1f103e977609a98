#include "Fernwick/App/Languages/LanguageTest.hpp"
#include "Fernwick/Window/Keyboard.hpp"
#include "Garden/Widgets/ChoiceButton.hpp"
#include "Garden/Widgets/ChoiceGroup.hpp"
#include "Garden/Widgets/RollingDigits.hpp"
#include "Garden/Widgets/TrackedLabel.hpp"
#include "Painting/Ground/Backdrop.hpp"
#include "Screens/Main/BoardArea.hpp"
#include "Screens/Main/ControlRow.hpp"
#include "Screens/Main/HintRow.hpp"
#include "Screens/Scores/HighScoresView.hpp"
#include "Screens/Scores/ScoreRow.hpp"

namespace {

struct Arabic : InstalledLanguage {
    Arabic() : InstalledLanguage(QStringLiteral("ar")) {}
};

class RightToLeft : public Arabic, public LanguageTest {
protected:
    [[nodiscard]] QRect labelRect(const QString& text) const {
        return rectOf(*Screen::find<Garden::TrackedLabel>(window, text));
    }

    static QImage pictureOf(QWidget& widget) {
        return widget.grab({QPoint(), widget.sizeHint()}).toImage();
    }

    static QImage rowOf(const std::string& name, std::int64_t score = 40) {
        ScoreRow row;
        row.show(1, scoreTable({{name, score}}).leaders("Classic").front(), false);
        row.resize(300, row.sizeHint().height());
        return row.grab().toImage();
    }

    /// The topmost line with anything but background between the columns `left` and `right`; the
    /// height of the row if there is none.
    static int topOfInk(const QImage& row, int left, int right) {
        const int background = qGray(row.pixel(row.width() / 2, 2));
        for (int y = 0; y < row.height(); ++y) {
            for (int x = left; x < right; ++x) {
                if (qGray(row.pixel(x, y)) > background + 40) {
                    return y;
                }
            }
        }
        return row.height();
    }

    static bool hasInk(const QImage& row, int left, int right) {
        return topOfInk(row, left, right) < row.height();
    }

    /// Whether the letters of a name of letters and dots are to the left of the dots.
    static bool hasLettersAtTheLeft(const QImage& row) {
        constexpr int rankAndScore = 48;
        int left = rankAndScore;
        int right = row.width() - rankAndScore;
        while (!hasInk(row, left, left + 1)) {
            ++left;
        }
        while (!hasInk(row, right - 1, right)) {
            --right;
        }
        const int middle = (left + right) / 2;
        return topOfInk(row, left, middle) < topOfInk(row, middle, right);
    }

    /// The inside of the board, without the background around it, which is mirrored.
    static QImage boardOf(Session& session) {
        Painting::Backdrop backdrop;
        QWidget parent;
        parent.resize(600, 500);
        BoardArea area(session, backdrop, &parent);
        area.resize(parent.size());
        area.placeBoard(Painting::fitBoard(area.rect(), {28, 22}), {}, area.devicePixelRatioF());
        constexpr int edge = 30;
        return area.grab(area.frame().toRect().adjusted(edge, edge, -edge, -edge)).toImage();
    }
};

constexpr int sidePadding = 38;

}  // namespace

TEST_F(RightToLeft, startsRowsAtTheRight) {
    const int right = smallestWindow.width() - sidePadding;
    const QRect arrows = labelRect(QStringLiteral("↑ ↓ ← →"));
    const QRect tagline =
        labelRect(QCoreApplication::translate("HeaderRow", "A little room to grow."));
    const QList<Garden::ChoiceButton*> speeds =
        child<ControlRow>().findChildren<Garden::ChoiceButton*>();

    EXPECT_EQ(arrows.right() + 1, right);
    EXPECT_EQ(tagline.right() + 1, right);
    EXPECT_GT(rectOf(*speeds[0]).left(), rectOf(*speeds[1]).left());
    EXPECT_GT(rectOf(*speeds[1]).left(), rectOf(*speeds[2]).left());
}

TEST_F(RightToLeft, endsRowsAtTheLeft) {
    const QList<Garden::RollingDigits*> tiles = window.findChildren<Garden::RollingDigits*>();
    const QRect status =
        labelRect(QCoreApplication::translate("ControlRow", "THE CLASSIC, REPLANTED"));

    EXPECT_EQ(rectOf(*tiles[1]).left(), sidePadding);
    EXPECT_GT(rectOf(*tiles[0]).left(), rectOf(*tiles[1]).right());
    EXPECT_EQ(status.left(), sidePadding);
}

TEST_F(RightToLeft, growsThePersonalBestAwayFromTheEdge) {
    auto& best = *window.findChildren<Garden::RollingDigits*>()[1];
    setBest(1234567);

    EXPECT_EQ(rectOf(best).left(), sidePadding);
    EXPECT_EQ(best.width(), best.sizeHint().width());
}

TEST_F(RightToLeft, doesNotReorderTheArrowKeyHint) {
    const QString keys = QStringLiteral("↑ ↓ ← →");
    auto& arrows = *Screen::find<Garden::TrackedLabel>(window, keys);
    const QImage mirrored = pictureOf(arrows);
    const Language english{QString()};
    GameWindow other(session);
    other.show();
    processEvents();
    auto& otherArrows = *Screen::find<Garden::TrackedLabel>(other, keys);

    EXPECT_EQ(mirrored, pictureOf(otherArrows));
}

TEST_F(RightToLeft, doesNotMirrorTheBoard) {
    session.start();
    const QImage mirrored = boardOf(session);
    const Language english{QString()};

    EXPECT_EQ(mirrored, boardOf(session));
}

TEST_F(RightToLeft, doesNotMirrorTheTurnKeys) {
    session.start();
    Keyboard::press(window, Qt::Key_Up);
    fireTimer();
    Keyboard::press(window, Qt::Key_Left);
    fireTimer();

    EXPECT_EQ(session.game().direction(), SnakeCore::Direction::left);
}

TEST_F(RightToLeft, arrowKeysMoveBetweenSpeedsInVisualOrder) {
    session.openScores();
    session.chooseScorePace(Pace::gentle);
    processEvents();
    const auto& speeds = *child<HighScoresView>().findChild<Garden::ChoiceGroup*>();
    const auto choices = speeds.findChildren<Garden::ChoiceButton*>();
    const auto chosenBy = [&](Qt::Key key) {
        QTest::keyClick(choices[speeds.current()], key);
        processEvents();
        return speeds.current();
    };

    EXPECT_EQ(chosenBy(Qt::Key_Left), 1);
    EXPECT_EQ(chosenBy(Qt::Key_Left), 2);
    EXPECT_EQ(chosenBy(Qt::Key_Right), 1);
}

TEST_F(RightToLeft, mirrorsTheBackgroundGradient) {
    const QImage seen = grab();
    constexpr int inset = 2;
    const int right = seen.width() - 1 - inset;

    EXPECT_GT(qGray(seen.pixel(right, inset)), qGray(seen.pixel(inset, inset)));
}

TEST_F(RightToLeft, putsTheRankAtTheRightAndTheScoreAtTheLeft) {
    const QImage row = rowOf("i", 12345678);
    constexpr int padding = 14;
    constexpr int rankWidth = 25;
    const int width = row.width();

    EXPECT_TRUE(hasInk(row, width - padding - rankWidth, width - padding));
    EXPECT_TRUE(hasInk(row, padding, padding + rankWidth));
    EXPECT_TRUE(hasInk(row, padding + rankWidth + 10, padding + rankWidth + 30));
    EXPECT_FALSE(hasInk(row, width / 2, width - 2 * padding - rankWidth - 10));
}

TEST_F(RightToLeft, startsNamesOfEveryScriptNextToTheRank) {
    for (const char* name : {"Ada", "مريم"}) {
        const QImage row = rowOf(name);
        const int begin = row.width() - 14 - 25 - 14;
        EXPECT_TRUE(hasInk(row, begin - 10, begin)) << name;
        EXPECT_FALSE(hasInk(row, 60, row.width() / 2)) << name;
    }
}

TEST_F(RightToLeft, displaysANameInTheDirectionOfItsScript) {
    EXPECT_TRUE(hasLettersAtTheLeft(rowOf("Ada............")));
    const Language english{QString()};
    EXPECT_FALSE(hasLettersAtTheLeft(rowOf("مريم............")));
}
