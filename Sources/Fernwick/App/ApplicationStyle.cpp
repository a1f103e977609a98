#include "App/ApplicationStyle.hpp"

#include <QApplication>
#include <QIcon>
#include <QPalette>

#include "Garden/Look/Fonts.hpp"
#include "Garden/Look/Palette.hpp"
#include "Window/MenuStyle.hpp"

namespace {

constexpr double fontSize = 13;
constexpr double menuBarFontSize = 12;
constexpr double disabledOpacity = 0.45;

class GardenStyle : public MenuStyle {
public:
    [[nodiscard]] QIcon standardIcon(StandardPixmap which, const QStyleOption* option,
                                     const QWidget* widget) const override {
        // Every QMenuBar asks for this icon when it is made, for the case that its titles do not
        // fit, which they always do. Loading it would initialise Qt's image format plugins, which
        // nothing else at start-up needs.
        return which == SP_ToolBarHorizontalExtensionButton
                   ? QIcon()
                   : MenuStyle::standardIcon(which, option, widget);
    }
};

QPalette gardenPalette() {
    QPalette colours(Garden::primaryText, Garden::night);
    colours.setColor(QPalette::Base, Garden::soil);
    colours.setColor(QPalette::Text, Garden::primaryText);
    colours.setColor(QPalette::Highlight, Garden::mint);
    colours.setColor(QPalette::HighlightedText, Garden::ink);
    const QColor disabled = Garden::withOpacity(Garden::muted, disabledOpacity);
    for (const QPalette::ColorRole role :
         {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
        colours.setColor(QPalette::Disabled, role, disabled);
    }
    return colours;
}

}  // namespace

void applyGardenStyle() {
    // The same style on every desktop: a native one could bring light controls.
    QApplication::setStyle(new GardenStyle);
    QApplication::setPalette(gardenPalette());
    QApplication::setFont(Garden::sans(fontSize, QFont::Normal));
    QApplication::setFont(Garden::sans(menuBarFontSize, QFont::Normal), "QMenuBar");
    // No blinking caret: it would wake the CPU as long as the name field is shown.
    QApplication::setCursorFlashTime(0);
}
