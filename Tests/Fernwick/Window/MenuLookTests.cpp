#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QTransform>
#include <functional>

#include "Fernwick/Window/WindowTest.hpp"
#include "Garden/Look/Palette.hpp"
#include "Support/Look.hpp"
#include "Support/Picture.hpp"

namespace {

/// Pictures of the menus on black, at several scales. Lengths are in points.
class MenuLook : public WindowTest {
protected:
    static constexpr std::array scales{1.0, 1.5, 2.0};
    // From the edge of the menu to the titles, without and with a column of ticks.
    static constexpr int titleStart = 16;
    static constexpr int tickColumn = 18;

    MenuLook() {
        for (const QAction* title : child<QMenuBar>().actions()) {
            title->menu()->ensurePolished();
            title->menu()->adjustSize();
        }
    }

    [[nodiscard]] QMenu& menu(qsizetype index) const {
        return *child<QMenuBar>().actions().at(index)->menu();
    }
    [[nodiscard]] QMenu& file() const { return menu(0); }
    [[nodiscard]] QMenu& game() const { return menu(1); }

    /// The items of `menu` without its separators.
    [[nodiscard]] static QList<QAction*> items(const QMenu& menu) {
        QList<QAction*> found = menu.actions();
        found.removeIf([](const QAction* item) { return item->isSeparator(); });
        return found;
    }

    /// The part of `item` between two distances from the leading edge of its menu, as it looks in
    /// a left-to-right layout.
    [[nodiscard]] static QImage part(QMenu& menu, QAction* item, double scale, int from, int to) {
        QImage image = picture(menu, scale);
        if (menu.isRightToLeft()) {
            image = image.transformed(QTransform::fromScale(-1, 1));
        }
        const QRect row = menu.actionGeometry(item);
        const QRectF place(from, row.top(), to - from, row.height());
        return image.copy(QRectF(place.topLeft() * scale, place.size() * scale).toRect());
    }

    /// The columns from the leading edge of the menu to the first and last pixel of `item` that
    /// differ from the menu's background.
    [[nodiscard]] static std::pair<int, int> extent(QMenu& menu, QAction* item, int from) {
        const QImage row = part(menu, item, 1, from, menu.width() - 8);
        int first = row.width();
        int last = 0;
        for (int x = 0; x < row.width(); ++x) {
            for (int y = 0; y < row.height(); ++y) {
                if (Look::distance(row.pixelColor(x, y), Garden::soil) > 40) {
                    first = std::min(first, x);
                    last = std::max(last, x);
                }
            }
        }
        return {from + first, from + last};
    }

    static void inBothDirections(QMenu& menu, const std::function<void()>& check) {
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            SCOPED_TRACE(direction);
            menu.setLayoutDirection(direction);
            menu.adjustSize();
            check();
        }
    }
};

}  // namespace

TEST_F(MenuLook, givesAllTitlesTheSameHeightWhateverTheirScript) {
    auto& bar = child<QMenuBar>();
    QFont font = bar.font();
    font.setFamilies(font.families() + QStringList(QStringLiteral("Noto Sans Arabic")));
    bar.setFont(font);
    const int latin = bar.actionGeometry(bar.actions().constFirst()).height();

    QAction* arabic = bar.addAction(QStringLiteral("ملف"));

    EXPECT_EQ(bar.actionGeometry(arabic).height(), latin);
}

TEST_F(MenuLook, hasRoundCornersAndAHairlineEdgeOnSoil) {
    const QColor edge = Look::over(Garden::withOpacity(Garden::mint, 0.16), Garden::soil);
    for (const double scale : scales) {
        SCOPED_TRACE(scale);
        const QImage image = picture(game(), scale);
        const int line = static_cast<int>(scale);
        const int middle = image.width() / 2;

        EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::black));
        EXPECT_EQ(image.pixelColor(line, line), QColor(Qt::black));
        const int inside = qRound(4 * scale);
        Look::expectColour(image.pixelColor(inside, inside), Garden::soil, 1);
        for (int y = 0; y < line; ++y) {
            Look::expectColour(image.pixelColor(middle, y), edge, 1);
        }
        Look::expectColour(image.pixelColor(middle, line), Garden::soil, 1);
    }
}

TEST_F(MenuLook, hasCornersAsRoundAsARadiusOf10) {
    constexpr int scale = 8;
    const QImage image = picture(game(), scale);

    int diagonal = 0;
    while (image.pixelColor(diagonal, diagonal) == QColor(Qt::black)) {
        ++diagonal;
    }

    EXPECT_NEAR(diagonal / double{scale}, 10 * (1 - std::sqrt(0.5)), 0.2);
}

TEST_F(MenuLook, marksCheckedItemsWithASmoothMintTickBeforeTheTitle) {
    QAction* sound = items(game()).last();
    inBothDirections(game(), [&] {
        for (const double scale : scales) {
            SCOPED_TRACE(scale);
            sound->setChecked(false);
            const QImage without =
                part(game(), sound, scale, titleStart, titleStart + tickColumn - 2);
            EXPECT_EQ(countOf(without, Garden::soil), without.width() * without.height());

            sound->setChecked(true);
            const QImage with = part(game(), sound, scale, titleStart, titleStart + tickColumn - 2);
            const int mint = countOf(with, Garden::mint);
            const int drawn = with.width() * with.height() - countOf(with, Garden::soil);
            EXPECT_GT(drawn, 20 * scale * scale);
            // The rest are the pixels that the stroke covers in part.
            EXPECT_LT(mint, drawn);
            EXPECT_LT(Look::nearestTo(Garden::mint, with, QRectF(QPointF(), with.size())), 40);
        }
    });
}

TEST_F(MenuLook, alignsTheTitlesAndLeavesRoomForTicksOnlyWhereThereAreSome) {
    for (QMenu* menu : {&file(), &game()}) {
        const int start = titleStart + (menu == &game() ? tickColumn : 0);
        for (QAction* item : items(*menu)) {
            SCOPED_TRACE(item->text().toStdString());
            EXPECT_GE(extent(*menu, item, start - 2).first, start - 1);
            EXPECT_LE(extent(*menu, item, start - 2).first, start + 3);
        }
    }
}

TEST_F(MenuLook, linesTheShortcutsUpAtTheTrailingEdgeInMuted) {
    for (QMenu* menu : {&file(), &game()}) {
        inBothDirections(*menu, [menu] {
            for (QAction* item : items(*menu)) {
                SCOPED_TRACE(item->text().toStdString());
                if (!item->shortcut().isEmpty()) {
                    EXPECT_NEAR(extent(*menu, item, titleStart).second, menu->width() - 17, 2);
                    EXPECT_GT(countOf(part(*menu, item, 2, menu->width() - 60, menu->width() - 8),
                                      Garden::muted),
                              20);
                }
            }
        });
    }
}

TEST_F(MenuLook, putsAMintPlateBehindTheActiveItem) {
    QAction* item = items(game()).first();
    game().setActiveAction(item);

    const QImage image = picture(game(), 2);
    const QRect row = game().actionGeometry(item);
    const QColor plate = Look::over(Garden::withOpacity(Garden::mint, 0.12), Garden::soil);
    Look::expectColour(Look::colourAt(image, QPointF(row.left() + 4, row.center().y())), plate, 1);
    Look::expectColour(Look::colourAt(image, QPointF(row.left() + 0.6, row.top() + 0.6)),
                       Garden::soil, 1);
    EXPECT_LT(Look::nearestTo(Garden::mint, image, row), 10);
}

TEST_F(MenuLook, drawsDisabledItemsFaintlyAndWithoutAPlate) {
    QAction* item = items(file()).first();
    file().setActiveAction(item);
    item->setEnabled(false);

    const QImage row = part(file(), item, 2, 8, file().width() - 8);
    const QColor faint = Look::over(Garden::withOpacity(Garden::muted, 0.45), Garden::soil);

    Look::expectColour(row.pixelColor(2, row.height() / 2), Garden::soil, 1);
    for (int y = 0; y < row.height(); ++y) {
        for (int x = 0; x < row.width(); ++x) {
            EXPECT_LE(row.pixelColor(x, y).green(), faint.green() + 1);
        }
    }
    EXPECT_GT(countOf(row, faint), 20);
}

TEST_F(MenuLook, drawsASharpSeparator) {
    for (const double scale : scales) {
        SCOPED_TRACE(scale);
        const QImage image = picture(file(), scale);
        const QColor line = Look::over(Garden::withOpacity(Garden::mint, 0.12), Garden::soil);
        const QRect place = file().actionGeometry(file().actions().at(1));
        int rows = 0;
        for (int y = qRound(place.top() * scale); y < qRound((place.bottom() + 1) * scale); ++y) {
            const QColor colour = image.pixelColor(image.width() / 2, y);
            const bool onLine = Look::distance(colour, line) <= 1;
            EXPECT_TRUE(onLine || Look::distance(colour, Garden::soil) <= 1);
            rows += onLine ? 1 : 0;
        }
        EXPECT_EQ(rows, static_cast<int>(scale));
    }
}
