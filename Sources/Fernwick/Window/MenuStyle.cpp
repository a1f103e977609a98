#include "Window/MenuStyle.hpp"

#include <QMenuBar>

#include "Garden/Look/Contrast.hpp"
#include "Garden/Look/Fonts.hpp"
#include "Garden/Look/Palette.hpp"

namespace {

constexpr double fontSize = 12;
constexpr double hoverOpacity = 0.16;
constexpr double edgeOpacity = 0.16;
constexpr double disabledOpacity = 0.45;

QString menuStyle() {
    using Garden::css;
    return QStringLiteral(
               "QMenuBar { background: transparent; color: %1; spacing: %9px; }"
               "QMenuBar::item { background: transparent; padding: 5px %2px; border-radius: 6px; }"
               "QMenuBar::item:selected { background: %3; color: %4; }"
               "QMenu { background: %5; color: %6; border: 1px solid %7; padding: 6px; }"
               "QMenu::item { padding: 6px 28px 6px 28px; border-radius: 5px; }"
               "QMenu::item:selected { background: %3; color: %4; }"
               "QMenu::item:disabled { color: %8; }"
               "QMenu::separator { height: 1px; background: %7; margin: 6px 10px; }")
        .arg(css(Garden::legible(Garden::muted)))
        .arg(menuItemPadding)
        .arg(css(Garden::withOpacity(Garden::mint, hoverOpacity)), css(Garden::mint),
             css(Garden::soil), css(Garden::primaryText),
             css(Garden::withOpacity(Garden::mint, edgeOpacity)),
             css(Garden::withOpacity(Garden::muted, disabledOpacity)))
        .arg(menuItemSpacing);
}

}  // namespace

void styleMenuBar(QMenuBar& bar) {
    bar.setFont(Garden::sans(fontSize, QFont::Normal));
    bar.setStyleSheet(menuStyle());
    QObject::connect(&Garden::Contrast::shared(), &Garden::Contrast::changed, &bar,
                     [&bar] { bar.setStyleSheet(menuStyle()); });
}
