#include <gtest/gtest.h>

#include <QWidget>

#include "Garden/Look/Fonts.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Widgets/ContentDensity.hpp"
#include "Garden/Widgets/GardenButton.hpp"
#include "Garden/Widgets/IconView.hpp"
#include "Garden/Widgets/Layout.hpp"
#include "Garden/Widgets/TrackedLabel.hpp"

namespace {

class ContentDensity : public ::testing::Test {
protected:
    ContentDensity() {
        column->addWidget(label);
        column->addSpacing(13);
        column->addWidget(icon);
        column->addWidget(button);
        density = new Garden::ContentDensity(root);
    }

    QWidget root;
    QVBoxLayout* column = Garden::layOut<QVBoxLayout>(&root, 20, 30);
    Garden::TrackedLabel* label = new Garden::TrackedLabel(
        QStringLiteral("Grow"), Garden::sans(20, QFont::Normal), Garden::mint);
    Garden::IconView* icon = new Garden::IconView(Garden::Icon::leaf, 30, Garden::mint);
    Garden::GardenButton* button = new Garden::GardenButton(QStringLiteral("Done"));
    Garden::ContentDensity* density = nullptr;
};

}  // namespace

TEST_F(ContentDensity, withLessAirChangesOnlySpacingAndMargins) {
    const QSize labelSize = label->sizeHint();

    density->set({0.5, 1});

    EXPECT_EQ(column->spacing(), 10);
    EXPECT_EQ(column->contentsMargins(), QMargins(15, 15, 15, 15));
    EXPECT_EQ(column->itemAt(1)->sizeHint().height(), 7);
    EXPECT_EQ(label->sizeHint(), labelSize);
    EXPECT_EQ(icon->width(), 30);
}

TEST_F(ContentDensity, scalesEverythingAtOnce) {
    density->set({1, 0.8});

    EXPECT_EQ(column->spacing(), 16);
    EXPECT_EQ(label->font().pixelSize(), 16);
    EXPECT_EQ(icon->width(), 24);
    EXPECT_EQ(button->font().pixelSize(), 10);
}

TEST_F(ContentDensity, keepsButtonsHighWithLessAir) {
    const QSize full = button->sizeHint();

    density->set({0.5, 1});

    EXPECT_LT(button->sizeHint().width(), full.width());
    EXPECT_EQ(button->sizeHint().height(), full.height());
}

TEST_F(ContentDensity, takesEffectOnTheSizeOfTheWholeAtOnce) {
    const QSize full = root.sizeHint();
    density->set({1, 0.5});
    EXPECT_LT(root.sizeHint().height(), full.height());

    density->set({});

    EXPECT_EQ(root.sizeHint(), full);
}
