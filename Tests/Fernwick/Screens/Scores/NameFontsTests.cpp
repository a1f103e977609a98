#include <QFontDatabase>

#include "Fernwick/Window/WindowTest.hpp"
#include "Garden/Look/Fonts.hpp"
#include "Screens/Scores/NameField.hpp"
#include "Screens/Scores/ScoreRow.hpp"
#include "Support/Look.hpp"

namespace {

// Arabic, Hindi, Chinese, Japanese, Korean, Ukrainian, Greek and emoji.
const QStringList names{"سلمى", "प्रिया", "小明", "さくら", "민준", "Олеся", "Ελένη", "🐍🌿"};

SavedScores savedNames() {
    SavedScores saved;
    for (const QString& name : names) {
        saved.emplace_back(name.toStdString(), 9);
    }
    return saved;
}

bool hasSystemFonts() {
    return QFontDatabase::hasFamily(QStringLiteral("Noto Sans Devanagari"));
}

/// Checks, whenever a widget of type `T` is about to be painted, that every name has its glyphs.
template <typename T>
class PaintCheck : public QObject {
public:
    PaintCheck() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (const auto* widget = dynamic_cast<T*>(watched);
            widget != nullptr && event->type() == QEvent::Paint) {
            ++count;
            for (const QString& name : names) {
                EXPECT_TRUE(Look::hasEveryLetter(name, widget->font())) << name.toStdString();
            }
        }
        return false;
    }

    int count = 0;
};

/// Each test needs a process of its own: once taken in, the system's fonts stay.
class NameFonts : public WindowTest {
protected:
    NameFonts() : WindowTest(savedNames()) {}

    /// The place of every widget in the window, and the size that it would like to have.
    [[nodiscard]] QList<QRect> places() const {
        QList<QRect> found;
        for (const QWidget* widget : window.findChildren<QWidget*>()) {
            found.append(rectOf(*widget));
            found.append({{}, widget->sizeHint()});
        }
        return found;
    }
};

}  // namespace

TEST_F(NameFonts, areLeftOutUntilTheFirstRunHasEnded) {
    EXPECT_FALSE(hasSystemFonts());
    startRun();
    EXPECT_FALSE(hasSystemFonts());

    endRun();

    EXPECT_TRUE(hasSystemFonts());
}

TEST_F(NameFonts, areTakenInForTheScoreSheet) {
    EXPECT_FALSE(hasSystemFonts());

    openScores();

    EXPECT_TRUE(hasSystemFonts());
}

TEST_F(NameFonts, haveEveryLetterWhenTheSheetIsFirstPainted) {
    const PaintCheck<ScoreRow> check;

    openScores();
    waitForAnimations();

    EXPECT_GE(check.count, names.size());
}

TEST_F(NameFonts, haveEveryLetterWhenTheNameFieldIsFirstPainted) {
    const PaintCheck<NameField> check;

    playToNameEntry();
    waitForAnimations();

    EXPECT_GE(check.count, 1);
}

TEST_F(NameFonts, haveEveryLetterWhenTheTopTenIsFirstPainted) {
    const PaintCheck<ScoreRow> check;

    playAndSaveAs(names.first());
    waitForAnimations();

    EXPECT_GE(check.count, 1);
}

TEST_F(NameFonts, changeNoPlaceAndNoPixelOfTheMainScreenWhenTakenIn) {
    const QImage before = grab();
    const QList<QRect> placesBefore = places();

    Garden::provideSystemFonts();
    processEvents();

    EXPECT_TRUE(hasSystemFonts());
    EXPECT_EQ(places(), placesBefore);
    EXPECT_EQ(grab(), before);
}
