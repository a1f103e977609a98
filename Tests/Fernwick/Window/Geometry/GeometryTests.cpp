#include <QGuiApplication>
#include <QLayout>
#include <QMenuBar>
#include <QScreen>

#include "Fernwick/Window/Geometry/SceneWindow.hpp"
#include "Fernwick/Window/Geometry/WindowSizes.hpp"
#include "Fernwick/Window/Layout.hpp"
#include "Garden/Look/TextScale.hpp"
#include "Garden/Widgets/Sheet.hpp"
#include "Screens/Scores/ScoreRow.hpp"

// GoogleTest prints the parameter of a failed test with this.
static void PrintTo(const QString& text, std::ostream* out) {
    *out << text.toStdString();
}

namespace {

QRect rectIn(const QWidget& root, const QWidget& widget) {
    return {widget.mapTo(&root, QPoint()), widget.size()};
}

/// Expects `widget` to lie inside every widget around it.
void expectInside(const QWidget& window, const QWidget& widget) {
    for (const QWidget* around = widget.parentWidget(); around != nullptr;
         around = around->parentWidget()) {
        EXPECT_TRUE(around->rect().contains(rectIn(*around, widget)))
            << around->metaObject()->className();
        if (around == &window) {
            break;
        }
    }
}

void expectWhole(const QWidget& element) {
    const QSize needed = element.sizeHint().boundedTo(element.maximumSize());
    EXPECT_GE(element.width(), needed.width());
    if (qobject_cast<const ScoreRows*>(&element) == nullptr) {
        EXPECT_GE(element.height(), needed.height());
    }
}

/// Expects a list of less than its full size to show only whole rows, and at least two.
void expectWholeRows(const ScoreRows& rows) {
    const QList<ScoreRow*> all = rows.findChildren<ScoreRow*>();
    const double scale = all.isEmpty() ? 1 : all.front()->font().pixelSize() / 14.0;
    const bool full = rows.height() == rows.maximumHeight() && scale >= 1;
    if (all.isEmpty() ||
        (full && all.front()->parentWidget()->layout()->spacing() == qRound(4 * scale))) {
        return;
    }
    int visible = 0;
    for (const ScoreRow* row : all) {
        const QWidget& viewport = *row->parentWidget()->parentWidget();
        const QRect shown = rectIn(viewport, *row);
        if (viewport.rect().intersects(shown)) {
            EXPECT_TRUE(viewport.rect().contains(shown));
            ++visible;
        }
    }
    EXPECT_GE(visible, std::min<qsizetype>(all.size(), 2));
}

/// The menu titles and window buttons, in the coordinates of the window.
QList<QRect> bandRects(const GameWindow& window) {
    QList<QRect> rects;
    const auto& bar = *window.findChild<QMenuBar*>();
    for (QAction* menu : bar.actions()) {
        if (bar.isVisible()) {
            rects.append(bar.actionGeometry(menu).translated(bar.mapTo(&window, QPoint())));
        }
    }
    return rects;
}

void expectComposed(const GameWindow& window) {
    const auto* sheet = window.findChild<Garden::Sheet*>();
    const bool sheetOpen = sheet != nullptr && sheet->isVisible();
    const QWidget& front = sheetOpen ? static_cast<const QWidget&>(*sheet) : window;
    QList<std::pair<QRect, QString>> taken;
    for (const QRect& rect : bandRects(window)) {
        EXPECT_TRUE(window.rect().contains(rect));
        taken.append({rect, QStringLiteral("a menu")});
    }
    if (sheetOpen) {
        const QRect rect = rectIn(window, *sheet);
        EXPECT_TRUE(window.rect().contains(rect));
        for (const auto& [other, name] : taken) {
            EXPECT_FALSE(rect.intersects(other)) << "the sheet and " << name.toStdString();
        }
    }
    ASSERT_GT(Layout::visibleElements(front).size(), 4);
    for (QWidget* element : Layout::visibleElements(front)) {
        SCOPED_TRACE(element->metaObject()->className() + std::string(" ") +
                     Screen::nameOf(element).toStdString());
        const QRect rect = rectIn(window, *element);
        expectInside(window, *element);
        expectWhole(*element);
        for (const auto& [other, name] : taken) {
            EXPECT_FALSE(rect.intersects(other)) << name.toStdString();
        }
        taken.append({rect, Screen::nameOf(element)});
        if (element->inherits("Garden::TrackedLabel") || element->inherits("QAbstractButton")) {
            EXPECT_TRUE(element->inherits("Garden::IconButton") ||
                        element->font().pixelSize() >= 8);
        }
        if (const auto* rows = qobject_cast<const ScoreRows*>(element); rows != nullptr) {
            expectWholeRows(*rows);
        }
    }
}

struct State {
    Scene scene;
    Pace pace;
};

/// Each state of the screens once, and the card with the result of each pace.
const std::vector<State>& states() {
    static const std::vector<State> all = [] {
        std::vector<State> result;
        for (const Scene& scene : galleryScenes()) {
            const bool hasCard =
                scene.name == QLatin1String("ended") || scene.name == QLatin1String("saved");
            for (const Pace pace : allPaces) {
                if (hasCard || pace == Pace::classic) {
                    result.push_back({scene, pace});
                }
            }
        }
        return result;
    }();
    return all;
}

void expectComposedAt(const QString& language, const State& state, const QList<QSize>& sizes,
                      const QList<Qt::WindowState>& kinds) {
    SceneWindow scene(language, state.scene, state.pace);
    scene.dontPaint();
    for (QScreen* screen : QGuiApplication::screens()) {
        const QSize size = screen->size();
        for (const Qt::WindowState kind : kinds) {
            if (!sizes.contains(size)) {
                continue;
            }
            scene.cover(screen, kind);
            SCOPED_TRACE(state.scene.name.toStdString() + " " + std::to_string(size.width()) + "x" +
                         std::to_string(size.height()) +
                         (kind == Qt::WindowFullScreen ? " full screen" : " tile"));
            ASSERT_EQ(scene.window().size(), size);
            expectComposed(scene.window());
        }
    }
}

/// The desktop's factor for texts is `factor` while this exists.
class LargerTexts {
public:
    explicit LargerTexts(double factor) { Garden::TextScale::shared().setFactor(factor); }
    ~LargerTexts() { Garden::TextScale::shared().setFactor(1); }
    Q_DISABLE_COPY_MOVE(LargerTexts)
};

class Geometry : public ::testing::TestWithParam<QString> {};

QStringList languages() {
    return QStringList(QStringLiteral("en")) + Language::translated();
}

INSTANTIATE_TEST_SUITE_P(Languages, Geometry, ::testing::ValuesIn(languages()),
                         [](const auto& language) { return language.param.toStdString(); });

}  // namespace

TEST_P(Geometry, everythingIsWholeAndApartAtEverySizeInEveryState) {
    for (const State& state : states()) {
        expectComposedAt(GetParam(), state, windowSizes(),
                         {Qt::WindowFullScreen, Qt::WindowMaximized});
    }
}

TEST_P(Geometry, everythingIsWholeAndApartWithLargerTexts) {
    // One for each arrangement of the screen. In a tile, the title band takes room, too.
    const QList<QSize> sizes{{820, 760}, {1280, 720}, {1024, 600}, {700, 480}, {640, 1048}};
    const LargerTexts larger(1.5);
    for (const State& state : states()) {
        expectComposedAt(GetParam(), state, sizes, {Qt::WindowMaximized});
    }
}
