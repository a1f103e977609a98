#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QCoreApplication>

#include "Garden/Widgets/IconView.hpp"
#include "Garden/Widgets/RollingDigits.hpp"
#include "Garden/Widgets/StatusDot.hpp"
#include "Garden/Widgets/TrackedLabel.hpp"
#include "Screens/Scores/HighScoresView.hpp"
#include "Screens/Scores/NameField.hpp"
#include "Screens/Scores/ScoreRows.hpp"
#include "Session/Session.hpp"
#include "Support/Look.hpp"
#include "Support/Screen.hpp"

/// Checks that widgets have the size they need and do not overlap.
namespace Layout {

/// Labels, numbers, icons, buttons and the like, as opposed to containers.
inline bool isElement(const QWidget& widget) {
    return qobject_cast<const Garden::TrackedLabel*>(&widget) != nullptr ||
           qobject_cast<const Garden::RollingDigits*>(&widget) != nullptr ||
           qobject_cast<const Garden::IconView*>(&widget) != nullptr ||
           qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
           qobject_cast<const NameField*>(&widget) != nullptr ||
           qobject_cast<const ScoreRows*>(&widget) != nullptr ||
           qobject_cast<const Garden::StatusDot*>(&widget) != nullptr ||
           widget.objectName() == QLatin1String("rule");
}

inline bool isInsideRows(const QWidget& widget) {
    const QWidget* around = widget.parentWidget();
    return around != nullptr &&
           (qobject_cast<const ScoreRows*>(around) != nullptr || isInsideRows(*around));
}

/// The visible elements in `root`; a list of scores counts as one.
inline QList<QWidget*> visibleElements(const QWidget& root) {
    QList<QWidget*> elements;
    for (QWidget* widget : root.findChildren<QWidget*>()) {
        if (widget->isVisible() && isElement(*widget) && !isInsideRows(*widget)) {
            elements.append(widget);
        }
    }
    return elements;
}

/// Expects every element in `root` to have its preferred size, to lie inside the padding and its
/// parent, and to overlap no other element.
inline void expectFits(const QWidget& root, const QMargins& padding) {
    const QList<QWidget*> elements = visibleElements(root);
    ASSERT_FALSE(elements.empty());
    const auto rectOf = [&root](const QWidget& widget) {
        return QRect(widget.mapTo(&root, QPoint()), widget.size());
    };
    for (qsizetype index = 0; index < elements.size(); ++index) {
        const QWidget& element = *elements[index];
        SCOPED_TRACE(Screen::nameOf(elements[index]).toStdString());
        const QRect rect = rectOf(element);
        EXPECT_TRUE(root.rect().marginsRemoved(padding).contains(rect));
        EXPECT_TRUE(element.parentWidget()->rect().contains(element.geometry()));
        const QSize needed = element.sizeHint().boundedTo(element.maximumSize());
        EXPECT_GE(element.width(), needed.width());
        EXPECT_GE(element.height(), needed.height());
        for (qsizetype other = 0; other < index; ++other) {
            EXPECT_FALSE(rect.intersects(rectOf(*elements[other])))
                << Screen::nameOf(elements[other]).toStdString();
        }
    }
}

inline void expectWindowFits(const QWidget& window) {
    expectFits(window, {38, 0, 38, 26});
}

/// Opens the score sheet, expects it and its contents to fit into the window, and closes it.
inline void expectScoreSheetFits(Session& session, const QWidget& window) {
    const auto processEvents = [] {
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    };
    session.openScores();
    processEvents();
    const auto& sheet = *window.findChild<HighScoresView*>();
    EXPECT_TRUE(window.rect().contains(QRect(sheet.mapTo(&window, QPoint()), sheet.size())));
    expectFits(sheet, {32, 32, 32, 32});
    session.closeScores();
    processEvents();
}

}  // namespace Layout
