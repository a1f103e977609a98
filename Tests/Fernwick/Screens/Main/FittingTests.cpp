#include "Fernwick/Window/Layout.hpp"
#include "Fernwick/Window/LookTest.hpp"
#include "Screens/Main/HeaderRow.hpp"
#include "Screens/Scores/HighScoresView.hpp"
#include "Screens/Scores/NameField.hpp"
#include "Screens/Scores/ScoreRow.hpp"
#include "Screens/Scores/ScoreRows.hpp"

namespace {

/// Everything has to fit into the smallest window.
class Fitting : public LookTest {
protected:
    using LookTest::LookTest;
};

SavedScores tableOfLongNames() {
    const auto repeated = [](const char* text, int count) {
        return QString::fromUtf8(text).repeated(count).toStdString();
    };
    return {{std::string(24, 'W'), 1234567},
            {repeated("🌿", 24), 987654},
            {QStringLiteral("مريم بنت محمد العجلية الاسطرلابية").left(24).toStdString(), 54321},
            {repeated("Z̸͠o̴͝e̵͘", 8), 1240},
            {repeated("ﷺ", 24), 640},
            {repeated("👨‍👩‍👧‍👦", 24), 90},
            {"A", 8},
            {"B", 7},
            {"C", 6},
            {"D", 0}};
}

class FittingLongNames : public Fitting {
protected:
    FittingLongNames() : Fitting(tableOfLongNames()) {}
};

INSTANTIATE_TEST_SUITE_P(Look, Fitting, ::testing::Values(QSize(820, 760)), sizeName);
INSTANTIATE_TEST_SUITE_P(Look, FittingLongNames, ::testing::Values(QSize(820, 760)), sizeName);

}  // namespace

TEST_P(Fitting, everythingFitsBeforeAndDuringARun) {
    Layout::expectWindowFits(window);
    startRun();
    Layout::expectWindowFits(window);
    startAndPauseRun();
    Layout::expectWindowFits(window);
}

TEST_P(Fitting, everythingFitsAfterARun) {
    playToNameEntry();
    Layout::expectWindowFits(window);
    playAndSkip();
    Layout::expectWindowFits(window);
    playAndSaveAs(QString(24, u'W'));
    Layout::expectWindowFits(window);
}

TEST_P(FittingLongNames, everythingFitsWithAFullTable) {
    Layout::expectScoreSheetFits(session, window);
    playAndSkip();
    Layout::expectWindowFits(window);
}

TEST_P(Fitting, theScoreSheetFitsWithAnEmptyTable) {
    Layout::expectScoreSheetFits(session, window);
}

TEST_P(FittingLongNames, rowsKeepTheWidthOfTheList) {
    openScores();

    const auto& rows = *child<HighScoresView>().findChild<ScoreRows*>();
    const QList<ScoreRow*> shown = rows.findChildren<ScoreRow*>();
    ASSERT_EQ(shown.size(), 10);
    for (const ScoreRow* row : shown) {
        EXPECT_EQ(rectIn(rows, *row).x(), 0);
        EXPECT_EQ(row->width(), rows.width());
        EXPECT_EQ(row->height(), shown.front()->height());
    }
}

TEST_P(Fitting, scoresOfOneToSevenDigitsFitAndStayRightAligned) {
    auto& score = *window.findChildren<Garden::RollingDigits*>().front();
    const int right = window.width() - 38;
    for (const std::int64_t value : {7, 42, 123, 1234, 12345, 123456, 1234567}) {
        SCOPED_TRACE(value);
        score.setValue(value);
        setBest(value);

        Layout::expectWindowFits(window);
        const QList<Garden::RollingDigits*> both = window.findChildren<Garden::RollingDigits*>();
        EXPECT_EQ(Look::rightOf(rectOf(*both.back())), right);
        EXPECT_EQ(child<HeaderRow>().width(), window.width() - 2 * 38);
    }
}

TEST_P(Fitting, moreDigitsMoveNothingBelowTheHeader) {
    const QRectF board = boardFrame();
    const QRect hint = labelRect("or WASD to move");

    setBest(1234567);

    EXPECT_EQ(boardFrame(), board);
    EXPECT_EQ(labelRect("or WASD to move"), hint);
}

TEST_P(Fitting, aLongNameStaysInsideThePaddingOfItsField) {
    playToNameEntry();
    const QRect field = rectOf<NameField>();
    const QRect left(field.topLeft() + QPoint(2, 2), QSize(10, field.height() - 4));
    const QRect right = left.translated(field.width() - 14, 0);
    const auto paddingOf = [&](const QImage& seen) {
        const auto scale = static_cast<int>(seen.devicePixelRatio());
        return std::pair(seen.copy(QRect(left.topLeft() * scale, left.size() * scale)),
                         seen.copy(QRect(right.topLeft() * scale, right.size() * scale)));
    };
    // The caret of an empty field stands in its padding.
    session.editName(QStringLiteral("A"));
    processEvents();
    const auto withShortName = paddingOf(picture());

    for (const QString& name :
         {QString(24, u'W'), QStringLiteral("🌿").repeated(24), QString(24, u'م')}) {
        session.editName(name);
        processEvents();
        EXPECT_EQ(rectOf<NameField>(), field);
        EXPECT_EQ(paddingOf(picture()), withShortName) << name.toStdString();
    }
}
