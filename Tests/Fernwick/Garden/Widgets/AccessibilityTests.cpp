#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QSignalSpy>

#include "Garden/Look/Fonts.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Widgets/ChoiceGroup.hpp"
#include "Garden/Widgets/GardenButton.hpp"
#include "Garden/Widgets/IconButton.hpp"
#include "Garden/Widgets/IconView.hpp"
#include "Garden/Widgets/RollingDigits.hpp"
#include "Garden/Widgets/TrackedLabel.hpp"

namespace {

QAccessibleInterface& accessible(QObject& object) {
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&object);
    EXPECT_NE(interface, nullptr);
    return *interface;
}

}  // namespace

TEST(Accessibility, exposesALabelAsStaticText) {
    Garden::TrackedLabel label(QStringLiteral("No rush."), Garden::serif(35, QFont::Normal),
                               Garden::primaryText);

    EXPECT_EQ(accessible(label).role(), QAccessible::StaticText);
    EXPECT_EQ(accessible(label).text(QAccessible::Name), QStringLiteral("No rush."));
}

TEST(Accessibility, namesAButtonByItsTextOrHelpText) {
    Garden::GardenButton done(QStringLiteral("Done"));
    Garden::IconButton scores(Garden::Icon::trophy, QStringLiteral("High scores"));

    EXPECT_EQ(accessible(done).role(), QAccessible::PushButton);
    EXPECT_EQ(accessible(done).text(QAccessible::Name), QStringLiteral("Done"));
    EXPECT_EQ(accessible(scores).role(), QAccessible::PushButton);
    EXPECT_EQ(accessible(scores).text(QAccessible::Name), QStringLiteral("High scores"));
}

TEST(Accessibility, offersThePressActionOnAnEnabledButton) {
    Garden::GardenButton done(QStringLiteral("Done"));
    const QSignalSpy clicks(&done, &QAbstractButton::clicked);
    QAccessibleActionInterface* actions = accessible(done).actionInterface();
    ASSERT_TRUE(actions->actionNames().contains(QAccessibleActionInterface::pressAction()));

    actions->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(clicks.count(), 1);

    done.setEnabled(false);
    EXPECT_FALSE(actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
    EXPECT_TRUE(accessible(done).state().disabled);
}

TEST(Accessibility, exposesTheCurrentChoiceAsTheCheckedRadioButton) {
    Garden::ChoiceGroup group({QStringLiteral("Gentle"), QStringLiteral("Classic")},
                              QStringLiteral("Speed"));
    group.setCurrent(0);
    EXPECT_EQ(accessible(group).role(), QAccessible::Grouping);
    EXPECT_EQ(accessible(group).text(QAccessible::Name), QStringLiteral("Speed"));
    ASSERT_EQ(accessible(group).childCount(), 2);

    const auto choices = group.findChildren<QAbstractButton*>();
    for (QAbstractButton* choice : choices) {
        EXPECT_EQ(accessible(*choice).role(), QAccessible::RadioButton);
        EXPECT_TRUE(accessible(*choice).state().checkable);
        EXPECT_EQ(accessible(*choice).text(QAccessible::Name), choice->text());
    }
    EXPECT_TRUE(accessible(*choices.at(0)).state().checked);
    EXPECT_FALSE(accessible(*choices.at(1)).state().checked);

    group.setCurrent(1);
    EXPECT_FALSE(accessible(*choices.at(0)).state().checked);
    EXPECT_TRUE(accessible(*choices.at(1)).state().checked);
}

TEST(Accessibility, exposesDigitsWithTheirNameAndValue) {
    Garden::RollingDigits digits(Qt::AlignLeft);
    digits.setAccessibleName(QStringLiteral("SCORE"));
    digits.setValue(70);

    EXPECT_EQ(accessible(digits).role(), QAccessible::StaticText);
    EXPECT_EQ(accessible(digits).text(QAccessible::Name), QStringLiteral("SCORE: 70"));
    EXPECT_EQ(accessible(digits).text(QAccessible::Value), QStringLiteral("70"));
    EXPECT_EQ(digits.accessibleName(), QStringLiteral("SCORE"));
}

TEST(Accessibility, givesADecorativeIconNoName) {
    Garden::IconView view(Garden::Icon::leaf, 30, Garden::mint);

    EXPECT_EQ(accessible(view).role(), QAccessible::Graphic);
    EXPECT_TRUE(accessible(view).text(QAccessible::Name).isEmpty());
}
