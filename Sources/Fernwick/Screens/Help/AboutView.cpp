#include "Screens/Help/AboutView.hpp"

#include <QCoreApplication>
#include <array>

#include "Garden/Look/Fonts.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Widgets/Accessibility.hpp"
#include "Garden/Widgets/Layout.hpp"
#include "Garden/Widgets/TrackedLabel.hpp"

namespace {

constexpr Garden::ContentSize contents{440, 490, 224, 400};
constexpr double workSize = 13;
constexpr double licenceSize = 12;
constexpr int rowSpacing = 10;
// Between the name of a work and its licence.
constexpr int leastGap = 16;

struct Work {
    const char* name;
    const char* licence;
};

// What is embedded in the program, and what it is linked with. Names are the same in every
// language.
constexpr std::array works{
    Work{"Inter · Elstob · JetBrains Mono", "SIL Open Font License 1.1"},
    Work{"Qt", "GNU LGPL 3"},
    Work{"PulseAudio", "GNU LGPL 2.1+"},
    Work{"ICU", "Unicode License"},
    Work{"libuuid", "BSD 3-Clause"},
    Work{"Wayland · XCB", "MIT"},
    Work{"Fontconfig", "HPND"},
};

Garden::TrackedLabel* label(const char* text, double size, const QColor& colour) {
    auto* label = new Garden::TrackedLabel(QString::fromUtf8(text),
                                           Garden::sans(size, QFont::Normal), colour);
    // Names in Latin letters keep their punctuation in place.
    label->setLayoutDirection(Qt::LeftToRight);
    return label;
}

/// One text for screen readers. When a dialog opens, Orca says its texts of three words or more.
QString inWords(const QString& work, const QString& about) {
    return QStringLiteral("%1: %2").arg(work, about);
}

QWidget* row(const Work& work) {
    auto* row = new QWidget;
    auto* line = Garden::layOut<QHBoxLayout>(row, leastGap);
    auto* name = label(work.name, workSize, Garden::primaryText);
    auto* licence = label(work.licence, licenceSize, Garden::muted);
    name->setAccessibleName(inWords(Garden::spoken(name->text()), licence->text()));
    Garden::setAccessibleRole(*licence, QAccessible::NoRole);
    line->addWidget(name);
    line->addStretch();
    line->addWidget(licence);
    return row;
}

}  // namespace

AboutView::AboutView(QWidget* parent)
    //: The name of the game. Stays as it is in every language.
    : Sheet(Garden::Icon::leafFilled, tr("Fernwick"), contents, parent) {
    //: %@ is a number such as 1.0.0; it has to stay.
    auto* version = addLine(
        tr("Version %@").replace(QStringLiteral("%@"), QCoreApplication::applicationVersion()));
    version->setAccessibleName(inWords(accessibleName(), version->text()));
    auto* rows = new QWidget;
    auto* column = Garden::layOut<QVBoxLayout>(rows, rowSpacing);
    for (const Work& work : works) {
        column->addWidget(row(work));
    }
    add(rows);
    //: Of the fonts and libraries above, whose makers share them.
    addLine(tr("Grown from what others share. Thank you."));
    complete();
}
