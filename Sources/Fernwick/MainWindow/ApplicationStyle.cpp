#include "MainWindow/ApplicationStyle.hpp"

#include <QApplication>
#include <QPalette>
#include <QToolTip>

#include "Garden/Fonts.hpp"
#include "Garden/Palette.hpp"

namespace {

constexpr double fontSize = 13;
constexpr double toolTipFontSize = 12;
constexpr double disabledOpacity = 0.45;

QPalette gardenPalette() {
    QPalette colours(Garden::primaryText, Garden::night);
    colours.setColor(QPalette::Base, Garden::soil);
    colours.setColor(QPalette::Text, Garden::primaryText);
    colours.setColor(QPalette::ToolTipBase, Garden::soil);
    colours.setColor(QPalette::ToolTipText, Garden::primaryText);
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
    // One style everywhere: a desktop's own would bring its light controls into the night.
    QApplication::setStyle(QStringLiteral("Fusion"));
    const QPalette colours = gardenPalette();
    QApplication::setPalette(colours);
    QApplication::setFont(Garden::sans(fontSize, QFont::Normal));
    // A caret that stands still, like all else that waits: a blinking one would wake the processor
    // for as long as a name is asked for.
    QApplication::setCursorFlashTime(0);
    QToolTip::setPalette(colours);
    QToolTip::setFont(Garden::sans(toolTipFontSize, QFont::Normal));
}
