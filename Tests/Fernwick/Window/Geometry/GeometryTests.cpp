#include <QGuiApplication>
#include <QLayout>
#include <QMenuBar>
#include <QScreen>

#include "Fernwick/Window/Geometry/SceneWindow.hpp"
#include "Fernwick/Window/Layout.hpp"
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
    const bool full = rows.height() == 150 || rows.height() == 330;
    if (all.isEmpty() || (full && all.front()->font().pixelSize() == 14 &&
                          all.front()->parentWidget()->layout()->spacing() == 4)) {
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

class Geometry : public ::testing::TestWithParam<QString> {};

QStringList languages() {
    return QStringList(QStringLiteral("en")) + Language::translated();
}

INSTANTIATE_TEST_SUITE_P(Languages, Geometry, ::testing::ValuesIn(languages()),
                         [](const auto& language) { return language.param.toStdString(); });

}  // namespace

TEST_P(Geometry, everythingIsWholeAndApartAtEverySizeInEveryState) {
    for (const State& state : states()) {
        SceneWindow scene(GetParam(), state.scene, state.pace);
        scene.dontPaint();
        for (QScreen* screen : QGuiApplication::screens()) {
            for (const Qt::WindowState kind : {Qt::WindowFullScreen, Qt::WindowMaximized}) {
                scene.cover(screen, kind);
                const QSize size = screen->size();
                SCOPED_TRACE(state.scene.name.toStdString() + " " + std::to_string(size.width()) +
                             "x" + std::to_string(size.height()) +
                             (kind == Qt::WindowFullScreen ? " full screen" : " tile"));
                ASSERT_EQ(scene.window().size(), size);
                expectComposed(scene.window());
            }
        }
    }
}
