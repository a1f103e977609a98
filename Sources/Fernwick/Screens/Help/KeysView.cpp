#include "Screens/Help/KeysView.hpp"

#include <QKeySequence>
#include <QLocale>

#include "Garden/Look/Fonts.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Widgets/KeyCap.hpp"
#include "Garden/Widgets/Layout.hpp"
#include "Garden/Widgets/TrackedLabel.hpp"
#include "Session/MovementLetters.hpp"

namespace {

constexpr Garden::ContentSize contents{480, 560, 245, 480};
constexpr double purposeSize = 13;
constexpr int rowSpacing = 6;
constexpr int capSpacing = 4;
constexpr int alternativeSpacing = 10;
// Between what a key does and its cap.
constexpr int leastGap = 16;

QString name(const QKeySequence& keys) {
    return keys.toString(QKeySequence::NativeText);
}

/// Keys that are one alternative.
using Keys = QStringList;

Keys movementLetterKeys() {
    return movementLetters(QLocale::system()).split(QString(), Qt::SkipEmptyParts);
}

QWidget* caps(const QList<Keys>& alternatives) {
    auto* caps = new QWidget;
    // Not mirrored in right-to-left layouts: the arrows keep their order.
    caps->setLayoutDirection(Qt::LeftToRight);
    auto* groups = Garden::layOut<QHBoxLayout>(caps, alternativeSpacing);
    for (const Keys& keys : alternatives) {
        auto* group = new QHBoxLayout;
        group->setSpacing(capSpacing);
        groups->addLayout(group);
        for (const QString& key : keys) {
            group->addWidget(new Garden::KeyCap(key));
        }
    }
    return caps;
}

/// A row as screen readers say it. When a dialog opens, Orca says its texts of three words or more;
/// the spaces around "+" make words of the keys of a shortcut.
QString inWords(const QString& purpose, const QList<Keys>& alternatives) {
    QStringList keys;
    for (const Keys& alternative : alternatives) {
        keys.append(alternative.join(u' ').replace(u'+', QStringLiteral(" + ")));
    }
    return QStringLiteral("%1: %2").arg(purpose, keys.join(QStringLiteral(", ")));
}

QWidget* row(const QString& purpose, const QList<Keys>& alternatives) {
    auto* row = new QWidget;
    auto* line = Garden::layOut<QHBoxLayout>(row, leastGap);
    auto* label = new Garden::TrackedLabel(purpose, Garden::sans(purposeSize, QFont::Normal),
                                           Garden::primaryText);
    label->setAccessibleName(inWords(purpose, alternatives));
    line->addWidget(label);
    line->addStretch();
    line->addWidget(caps(alternatives));
    return row;
}

}  // namespace

KeysView::KeysView(QWidget* parent)
    : Sheet(Garden::Icon::leafFilled, tr("The keys."), contents, parent) {
    auto* rows = new QWidget;
    auto* column = Garden::layOut<QVBoxLayout>(rows, rowSpacing);
    const auto list = [column](const QString& purpose, const QList<Keys>& alternatives) {
        column->addWidget(row(purpose, alternatives));
    };
    //: What the keys of the game do: short phrases, in the words of the menus.
    list(tr("Move"), {QStringLiteral("↑ ↓ ← →").split(u' '), movementLetterKeys()});
    list(tr("Start, pause or resume"), {{name(Qt::Key_Space)}});
    list(tr("Pause, or go back"), {{name(Qt::Key_Escape)}});
    list(tr("Start again"), {{QStringLiteral("R")}, {name(Qt::CTRL | Qt::Key_N)}});
    list(tr("Pause or resume"), {{name(Qt::CTRL | Qt::Key_P)}});
    list(tr("High scores"), {{name(Qt::CTRL | Qt::Key_L)}});
    list(tr("Enter or leave full screen"),
         {{name(Qt::Key_F11)}, {name(Qt::CTRL | Qt::META | Qt::Key_F)}});
    list(tr("Menus"), {{name(Qt::Key_F10)}, {QStringLiteral("Alt")}});
    list(tr("Reach a button, press it"), {{name(Qt::Key_Tab)}, {name(Qt::Key_Return)}});
    list(tr("These keys"), {{name(Qt::Key_F1)}});
    list(tr("Quit"), {{name(Qt::CTRL | Qt::Key_Q)}});
    add(rows);
    complete();
}
