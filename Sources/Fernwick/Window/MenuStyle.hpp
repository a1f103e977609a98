#pragma once

#include <QProxyStyle>

class QStyleOptionMenuItem;

/// Padding on both sides of a title in the menu bar, in points.
inline constexpr int menuItemPadding = 10;

/// Space before each title, including the first, in addition to its padding, in points.
inline constexpr int menuItemSpacing = 6;

/// Paints menu bars and menus in the colours of the game: menus have round corners where the
/// desktop blends translucent windows, and square ones elsewhere. The rest is Qt's Fusion style.
class MenuStyle : public QProxyStyle {
public:
    MenuStyle();

    void polish(QWidget* widget) override;
    using QProxyStyle::polish;

    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption* option,
                                  const QWidget* widget) const override;
    [[nodiscard]] QSize sizeFromContents(ContentsType type, const QStyleOption* option,
                                         const QSize& size, const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};
