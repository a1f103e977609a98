#include "Window/MenuStyle.hpp"

#include <QApplication>
#include <QMenu>
#include <QPainter>
#include <QStyleOptionMenuItem>

#include "Desktop/X11Compositor.hpp"
#include "Garden/Look/Contrast.hpp"
#include "Garden/Look/Density.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Look/Panel.hpp"
#include "Garden/Look/RoundedShape.hpp"
#include "Garden/Look/TextScale.hpp"
#include "Window/MenuFade.hpp"

namespace {

// Lengths are in points.
constexpr double menuRadius = 10;
constexpr int menuMargin = 6;
constexpr double plateRadius = 6;
constexpr double plateOpacity = 0.12;
constexpr double disabledOpacity = 0.45;
constexpr double separatorOpacity = 0.12;
constexpr double selectedShortcutOpacity = 0.7;

constexpr int titlePaddingY = 5;
// Between the plate of an open title and its menu.
constexpr int menuDistance = 3;
constexpr int itemPaddingX = 10;
constexpr int itemPaddingY = 6;
constexpr int separatorHeight = 11;
constexpr int shortcutGap = 32;
constexpr int tickSide = 10;
constexpr int tickSpacing = 8;
constexpr double tickWidth = 1.6;

QColor textColour(const QStyleOptionMenuItem& option, const QColor& resting,
                  const QColor& selected = Garden::mint) {
    if (!option.state.testFlag(QStyle::State_Enabled)) {
        return Garden::withOpacity(Garden::legible(Garden::muted), disabledOpacity);
    }
    return option.state.testFlag(QStyle::State_Selected) ? selected : resting;
}

void paintPlate(QPainter& painter, const QStyleOptionMenuItem& option, const QRect& place) {
    if (option.state.testFlag(QStyle::State_Selected) &&
        option.state.testFlag(QStyle::State_Enabled)) {
        painter.fillPath(
            Garden::continuousRoundedRect(Garden::alignedToPixels(painter, place), plateRadius),
            Garden::withOpacity(Garden::mint, plateOpacity));
    }
}

void paintTitle(QPainter& painter, const QStyleOptionMenuItem& option) {
    paintPlate(painter, option, option.rect.adjusted(0, menuDistance, 0, -menuDistance));
    painter.setPen(textColour(option, Garden::legible(Garden::muted)));
    painter.drawText(option.rect, Qt::AlignCenter | Qt::TextSingleLine | Qt::TextShowMnemonic,
                     option.text);
}

void paintSeparator(QPainter& painter, const QRect& rect) {
    const int top = rect.top() + (separatorHeight - 1) / 2;
    const QRectF place(rect.left() + itemPaddingX, top, rect.width() - 2 * itemPaddingX, 1);
    QRectF line = Garden::alignedToPixels(painter, place);
    line.setHeight(Garden::hairline(painter));
    painter.fillRect(line, Garden::withOpacity(Garden::mint, separatorOpacity));
}

// The same in right-to-left layouts.
void paintTick(QPainter& painter, const QRectF& box, const QColor& colour) {
    const auto at = [&](double x, double y) {
        return box.topLeft() + QPointF(x * box.width(), y * box.height());
    };
    QPainterPath tick(at(0.08, 0.54));
    tick.lineTo(at(0.37, 0.83));
    tick.lineTo(at(0.92, 0.19));
    painter.strokePath(tick, QPen(colour, tickWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

// Only menus with checkable items have room for ticks.
int gutter(const QStyleOptionMenuItem& option) {
    return option.menuHasCheckableItems ? tickSide + tickSpacing : 0;
}

void paintItem(QPainter& painter, const QStyleOptionMenuItem& option) {
    if (option.menuItemType == QStyleOptionMenuItem::Separator) {
        paintSeparator(painter, option.rect);
        return;
    }
    paintPlate(painter, option, option.rect);
    const auto placed = [&](const QRect& rect) {
        return QStyle::visualRect(option.direction, option.rect, rect);
    };
    const QRect content = option.rect.adjusted(itemPaddingX, 0, -itemPaddingX, 0);
    if (option.checked) {
        const QRect box(content.left(), content.center().y() - tickSide / 2 + 1, tickSide,
                        tickSide);
        paintTick(painter, placed(box), textColour(option, Garden::mint));
    }
    // AlignLeft is the leading side in either layout direction.
    painter.setLayoutDirection(option.direction);
    painter.setFont(option.font);
    painter.setPen(textColour(option, Garden::primaryText));
    painter.drawText(placed(content.adjusted(gutter(option), 0, 0, 0)),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextShowMnemonic,
                     option.text.section(u'\t', 0, 0));
    painter.setPen(textColour(option, Garden::legible(Garden::muted),
                              Garden::withOpacity(Garden::mint, selectedShortcutOpacity)));
    painter.drawText(placed(content), Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine,
                     option.text.section(u'\t', 1));
}

QSize itemSize(const QStyleOptionMenuItem& option, const QSize& title) {
    if (option.menuItemType == QStyleOptionMenuItem::Separator) {
        return {1, separatorHeight};
    }
    // QMenu adds the width of the widest shortcut.
    const int gap = option.text.contains(u'\t') ? shortcutGap : 0;
    return title + QSize(2 * itemPaddingX + gutter(option) + gap, 2 * itemPaddingY);
}

void fitText(QMenu& menu) {
    menu.setFont(Garden::scaled(QApplication::font("QMenu"), Garden::TextScale::shared().factor()));
}

}  // namespace

MenuStyle::MenuStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void MenuStyle::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    if (auto* menu = qobject_cast<QMenu*>(widget)) {
        menu->setAttribute(Qt::WA_TranslucentBackground);
        if (menu->findChild<MenuFade*>() == nullptr) {
            new MenuFade(*menu);
            connect(&Garden::TextScale::shared(), &Garden::TextScale::changed, menu,
                    [menu] { fitText(*menu); });
            fitText(*menu);
        }
    }
}

int MenuStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                           const QWidget* widget) const {
    switch (metric) {
        case PM_MenuBarItemSpacing:
            return menuItemSpacing;
        case PM_MenuHMargin:
        case PM_MenuVMargin:
            return menuMargin;
        case PM_MenuBarHMargin:
        case PM_MenuBarVMargin:
        case PM_MenuBarPanelWidth:
        case PM_MenuPanelWidth:
            return 0;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QSize MenuStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                  const QWidget* widget) const {
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (type == CT_MenuBarItem) {
        // Not the height of the text, which can be that of a fallback font.
        const int line = option->fontMetrics.height();
        return {size.width() + 2 * menuItemPadding, line + 2 * (titlePaddingY + menuDistance)};
    }
    if (type == CT_MenuItem && item != nullptr) {
        return itemSize(*item, size);
    }
    return QProxyStyle::sizeFromContents(type, option, size, widget);
}

void MenuStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                              QPainter* painter, const QWidget* widget) const {
    switch (element) {
        case PE_PanelMenu:
            Garden::paintPanel(*painter, option->rect, Desktop::isComposited() ? menuRadius : 0);
            break;
        case PE_FrameMenu:
        case PE_PanelMenuBar:
            break;
        default:
            QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void MenuStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const {
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    switch (element) {
        case CE_MenuBarItem:
        case CE_MenuItem:
            painter->save();
            painter->setRenderHint(QPainter::Antialiasing);
            element == CE_MenuItem ? paintItem(*painter, *item) : paintTitle(*painter, *item);
            painter->restore();
            break;
        case CE_MenuBarEmptyArea:
        case CE_MenuEmptyArea:
            break;
        default:
            QProxyStyle::drawControl(element, option, painter, widget);
    }
}
