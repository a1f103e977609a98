#pragma once

#include <QList>
#include <QSize>

/// The sizes that the window has to fit, in points: of small and scaled screens, of tiles, the
/// smallest free size, and of a wide and a high screen.
[[nodiscard]] inline const QList<QSize>& windowSizes() {
    static const QList<QSize> sizes{{1280, 800}, {1280, 720}, {1366, 768},  {1024, 600}, {960, 540},
                                    {853, 480},  {640, 360},  {640, 1048},  {760, 600},  {820, 760},
                                    {1280, 600}, {700, 480},  {3440, 1440}, {1080, 1920}};
    return sizes;
}
