#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>

#include "Garden/Widgets/IconView.hpp"
#include "Garden/Widgets/RollingDigits.hpp"
#include "Garden/Widgets/Rule.hpp"
#include "Garden/Widgets/StatusDot.hpp"
#include "Garden/Widgets/TrackedLabel.hpp"
#include "Screens/Scores/HighScoresView.hpp"
#include "Screens/Scores/NameField.hpp"
#include "Screens/Scores/ScoreRows.hpp"
#include "Support/Look.hpp"
#include "Support/Screen.hpp"

/// A screen is tidy when everything on it has the room it needs and none of another's.
namespace Tidiness {

inline bool isElement(const QWidget& widget) {
    return qobject_cast<const Garden::TrackedLabel*>(&widget) != nullptr ||
           qobject_cast<const Garden::RollingDigits*>(&widget) != nullptr ||
           qobject_cast<const Garden::IconView*>(&widget) != nullptr ||
           qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
           qobject_cast<const NameField*>(&widget) != nullptr ||
           qobject_cast<const ScoreRows*>(&widget) != nullptr ||
           qobject_cast<const Garden::StatusDot*>(&widget) != nullptr ||
           qobject_cast<const Garden::Rule*>(&widget) != nullptr;
}

/// What is shown inside `root` and is not made up of smaller things.
inline QList<QWidget*> elementsOf(const QWidget& root) {
    QList<QWidget*> elements;
    for (QWidget* widget : root.findChildren<QWidget*>()) {
        const bool insideRows = qobject_cast<ScoreRows*>(widget->parentWidget()) != nullptr;
        if (widget->isVisible() && isElement(*widget) && !insideRows) {
            elements.append(widget);
        }
    }
    return elements;
}

/// Expects every element of `root` whole, inside the padding of `root` and apart from the others.
inline void expectTidy(const QWidget& root, const QMargins& padding) {
    const QList<QWidget*> elements = elementsOf(root);
    ASSERT_FALSE(elements.empty());
    const auto placeOf = [&root](const QWidget& widget) {
        return QRect(widget.mapTo(&root, QPoint()), widget.size());
    };
    for (qsizetype index = 0; index < elements.size(); ++index) {
        const QWidget& element = *elements[index];
        SCOPED_TRACE(Screen::nameOf(elements[index]).toStdString());
        const QRect place = placeOf(element);
        EXPECT_TRUE(root.rect().marginsRemoved(padding).contains(place));
        EXPECT_TRUE(element.parentWidget()->rect().contains(element.geometry()));
        const QSize needed = element.sizeHint().boundedTo(element.maximumSize());
        EXPECT_GE(element.width(), needed.width());
        EXPECT_GE(element.height(), needed.height());
        for (qsizetype other = 0; other < index; ++other) {
            EXPECT_FALSE(place.intersects(placeOf(*elements[other])))
                << Screen::nameOf(elements[other]).toStdString();
        }
    }
}

/// The same of the whole window.
inline void expectTidyWindow(const QWidget& window) {
    expectTidy(window, {38, 0, 38, 26});
}

/// The same of the sheet of high scores, which is up and has to lie inside the window.
inline void expectTidySheet(const QWidget& window) {
    const auto& sheet = *window.findChild<HighScoresView*>();
    EXPECT_TRUE(window.rect().contains(QRect(sheet.mapTo(&window, QPoint()), sheet.size())));
    expectTidy(sheet, {32, 32, 32, 32});
}

}  // namespace Tidiness
