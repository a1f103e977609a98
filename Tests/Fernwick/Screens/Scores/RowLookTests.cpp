#include "Fernwick/Session/SavedScores.hpp"
#include "Garden/Look/Palette.hpp"
#include "Screens/Scores/ScoreRow.hpp"
#include "Support/Look.hpp"

namespace {

using Look::distance;

constexpr int rowWidth = 376;
constexpr int padding = 14;
constexpr int rankWidth = 25;
const QString shortName = QStringLiteral("A");
constexpr int nameLeft = padding + rankWidth + 14;

/// One row on a black background.
class RowLook : public ::testing::Test {
protected:
    QImage picture(std::int64_t rank, const QString& name, std::int64_t score,
                   bool highlighted = false) {
        row_.resize(rowWidth, row_.sizeHint().height());
        const SnakeCore::HighScores table = scoreTable({{name.toStdString(), score}});
        row_.show(rank, table.entries().front(), highlighted);
        QImage image(row_.size() * row_.devicePixelRatioF(), QImage::Format_RGB32);
        image.setDevicePixelRatio(row_.devicePixelRatioF());
        image.fill(Qt::black);
        row_.render(&image, {}, {}, QWidget::DrawChildren);
        return image;
    }

    /// The left and right edge of the drawing between `left` and `right`, in points.
    [[nodiscard]] static std::pair<double, double> inkBetween(const QImage& image, int left,
                                                              int right) {
        const double scale = image.devicePixelRatio();
        const QColor background = Look::colourAt(image, QPointF(7, image.height() / scale / 2));
        double first = right;
        double last = left;
        for (int x = qRound(left * scale); x < qRound(right * scale); ++x) {
            for (int y = 0; y < image.height(); ++y) {
                if (distance(image.pixelColor(x, y), background) > 30) {
                    first = std::min(first, x / scale);
                    last = std::max(last, (x + 1) / scale);
                }
            }
        }
        return {first, last};
    }

    ScoreRow row_;
};

const QStringList longNames{QString(24, u'W'), QStringLiteral("🌿").repeated(24),
                            QStringLiteral("مريم بنت محمد العجلية الاسطرلابية").left(24),
                            QStringLiteral("Z̸͠o̴͝e̵͘").repeated(8),
                            QStringLiteral("👨‍👩‍👧‍👦").repeated(24)};

}  // namespace

TEST_F(RowLook, isALineOfMediumTextPaddedBy10) {
    Look::expectType(row_, {Look::sans, 14, QFont::Medium});
    EXPECT_EQ(row_.sizeHint().height(), row_.fontMetrics().height() + 2 * 10);
}

TEST_F(RowLook, centresTheRankIn25PointsAfterThePadding) {
    const auto [first, last] = inkBetween(picture(10, shortName, 0), 0, nameLeft);

    EXPECT_GE(first, padding);
    EXPECT_LE(last, padding + rankWidth);
    EXPECT_NEAR((first + last) / 2, padding + rankWidth / 2.0, 1);
}

TEST_F(RowLook, startsTheName14AfterTheRank) {
    const auto [first, last] =
        inkBetween(picture(1, QStringLiteral("HHH"), 0), padding + rankWidth, rowWidth / 2);

    EXPECT_NEAR(first, nameLeft + 1, 1);
}

TEST_F(RowLook, rightAlignsTheScore) {
    for (const std::int64_t score : {0LL, 10LL, 4321LL, 1234567LL}) {
        const auto [first, last] = inkBetween(picture(1, shortName, score), rowWidth / 2, rowWidth);
        EXPECT_LE(last, rowWidth - padding);
        EXPECT_GE(last, rowWidth - padding - 4) << score;
    }
}

TEST_F(RowLook, givesEveryDigitTheSameWidth) {
    const auto ones = inkBetween(picture(1, shortName, 8111118), rowWidth / 2, rowWidth);
    const auto noughts = inkBetween(picture(1, shortName, 8000008), rowWidth / 2, rowWidth);

    EXPECT_EQ(ones, noughts);
}

TEST_F(RowLook, keepsALongNameBetweenTheRankAnd28PointsBeforeTheScore) {
    for (const QString& name : longNames) {
        SCOPED_TRACE(name.toStdString());
        const QImage withName = picture(1, name, 1234567);
        const QImage without = picture(1, shortName, 1234567);
        const double scale = withName.devicePixelRatio();
        const auto [scoreLeft, scoreRight] = inkBetween(without, rowWidth / 2, rowWidth);

        for (const auto& [left, right] :
             {std::pair(0.0, nameLeft - 1.0), std::pair(scoreLeft - 28 + 2, rowWidth * 1.0)}) {
            const QRect part(qRound(left * scale), 0, qRound((right - left) * scale),
                             withName.height());
            EXPECT_EQ(withName.copy(part), without.copy(part)) << left;
        }
        EXPECT_NE(withName, without);
    }
}

TEST_F(RowLook, isFaintWhiteOrMintWhenHighlighted) {
    const QColor black = Qt::black;
    const QPointF background(7, row_.sizeHint().height() / 2.0);

    Look::expectColour(Look::colourAt(picture(1, shortName, 0), background),
                       Look::over(Garden::withOpacity(Qt::white, 0.025), black), 1);
    Look::expectColour(Look::colourAt(picture(1, shortName, 0, true), background),
                       Look::over(Garden::withOpacity(Garden::mint, 0.12), black), 1);
}

TEST_F(RowLook, roundsItsCornersBy9) {
    const QImage image = picture(1, shortName, 0, true);
    const QColor background = Look::colourAt(image, QPointF(7, row_.height() / 2.0));

    EXPECT_EQ(Look::colourAt(image, QPointF(0.2, 0.2)), QColor(Qt::black));
    // The corner of radius 9 eases into the straight edges.
    EXPECT_EQ(Look::colourAt(image, QPointF(14, 0.2)), background);
    EXPECT_EQ(Look::colourAt(image, QPointF(0.2, 14)), background);
    EXPECT_NE(Look::colourAt(image, QPointF(5, 0.2)), background);
    EXPECT_EQ(Look::colourAt(image, QPointF(4.2, 4.2)), background);
}
