#include <QHelpEvent>

#include "Fernwick/Window/LookTest.hpp"
#include "Garden/Widgets/IconButton.hpp"
#include "Garden/Widgets/RollingDigits.hpp"
#include "Garden/Widgets/ToolTip.hpp"

namespace {

class ToolTipPlaces : public LookTest {
protected:
    /// The places of all visible widgets of type `T`.
    template <typename T>
    [[nodiscard]] QList<QRect> places() const {
        QList<QRect> found;
        for (const T* widget : window.findChildren<T*>()) {
            if (widget->isVisible()) {
                found.append(rectOf(*widget));
            }
        }
        return found;
    }

    /// The place of the tooltip of `control`.
    [[nodiscard]] QRect toolTipOf(Garden::IconButton& control) const {
        QHelpEvent event(QEvent::ToolTip, {}, control.mapToGlobal(QPoint()));
        QCoreApplication::sendEvent(&control, &event);
        return child<Garden::ToolTip>().geometry();
    }
};

INSTANTIATE_TEST_SUITE_P(Look, ToolTipPlaces,
                         ::testing::Values(QSize(640, 360), QSize(820, 760), QSize(940, 860),
                                           QSize(1920, 1080)),
                         sizeName);

}  // namespace

TEST_P(ToolTipPlaces, areNextToTheirControlAndCoverNoDigitsOrOtherControls) {
    QList<QRect> covered = places<QAbstractButton>();
    for (const auto* digits : window.findChildren<Garden::RollingDigits*>()) {
        covered.append(digits->restArea().translated(rectOf(*digits).topLeft()));
    }
    int shown = 0;
    for (auto* control : window.findChildren<Garden::IconButton*>()) {
        if (control->isVisible()) {
            SCOPED_TRACE(control->toolTip().toStdString());
            const QRect place = toolTipOf(*control);
            EXPECT_TRUE(window.rect().contains(place));
            EXPECT_TRUE(place.adjusted(0, -7, 0, 7).intersects(rectOf(*control)));
            for (const QRect& other : covered) {
                EXPECT_FALSE(place.intersects(other))
                    << other.x() << " " << other.y() << " " << other.width();
            }
            ++shown;
        }
    }
    EXPECT_EQ(shown, 6);
}
