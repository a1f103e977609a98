#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QTest>

#include "Garden/Look/Palette.hpp"
#include "Screens/Scores/NameField.hpp"
#include "Support/Look.hpp"
#include "Support/Picture.hpp"

namespace {

constexpr int fieldWidth = 400;

/// The name field with the focus in an active window.
class Caret : public ::testing::Test {
protected:
    Caret() {
        field.resize(fieldWidth, field.sizeHint().height());
        field.show();
        field.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&field));
        field.setFocus();
        QCoreApplication::processEvents();
    }

    /// The columns inside the edge of the field that hold a pixel for which `matches`, in points.
    template <typename Predicate>
    [[nodiscard]] QList<double> columns(Predicate matches) {
        const QImage seen = picture(field, field.devicePixelRatioF());
        const double scale = seen.devicePixelRatio();
        QList<double> found;
        for (int x = qRound(4 * scale); x < seen.width() - qRound(4 * scale); ++x) {
            for (int y = seen.height() / 4; y < seen.height() * 3 / 4; ++y) {
                if (matches(seen.pixelColor(x, y))) {
                    found.append(x / scale);
                    break;
                }
            }
        }
        return found;
    }

    [[nodiscard]] QList<double> caretColumns() {
        return columns([](const QColor& seen) { return Look::distance(seen, Garden::mint) < 20; });
    }

    /// The columns with text: lighter than the plate of the field, and grey, as the caret is not.
    [[nodiscard]] QList<double> textColumns() {
        return columns([](const QColor& seen) {
            constexpr int lighterThanThePlate = 40;
            return seen.red() > lighterThanThePlate && std::abs(seen.green() - seen.red()) < 10;
        });
    }

    /// The columns that differ between the focused field and the same without the focus, in points.
    [[nodiscard]] QList<double> columnsChangedByFocus() {
        const double scale = field.devicePixelRatioF();
        const QImage focused = picture(field, scale);
        field.clearFocus();
        const QImage unfocused = picture(field, scale);
        QList<double> changed;
        for (int x = 0; x < focused.width(); ++x) {
            if (focused.copy(x, 0, 1, focused.height()) !=
                unfocused.copy(x, 0, 1, focused.height())) {
                changed.append(x / scale);
            }
        }
        return changed;
    }

    void compose(const QString& text, int caretLength) {
        QInputMethodEvent event(
            text, {{QInputMethodEvent::Cursor, static_cast<int>(text.size()), caretLength, {}}});
        QCoreApplication::sendEvent(&field, &event);
    }

    NameField field;
};

}  // namespace

TEST_F(Caret, isAMintLineAfterTheTypedText) {
    field.setText(QStringLiteral("HH"));
    field.setCursorPosition(2);

    const QList<double> caret = caretColumns();

    ASSERT_FALSE(caret.isEmpty());
    // At least two pixels, all of them mint.
    EXPECT_EQ(caret.size(), qRound(1.5 * field.devicePixelRatioF()));
    EXPECT_GT(caret.first(), textColumns().last());
}

TEST_F(Caret, staysTwoPointsClearOfThePlaceholder) {
    field.setPlaceholderText(QStringLiteral("Your name"));
    const double pixel = 1 / field.devicePixelRatioF();

    const double right = caretColumns().constLast() + pixel;

    EXPECT_GE(textColumns().constFirst() - right, 2 - pixel / 2);
    EXPECT_LE(textColumns().constFirst() - right, 3.5);
}

TEST_F(Caret, placeholderStandsOnTheBaselineOfTheText) {
    // The rows through the stem of the first letter that are lighter than the plate.
    const auto rows = [this] {
        const QImage seen = picture(field, field.devicePixelRatioF());
        const int stem = qRound(16.5 * field.devicePixelRatioF());
        const int plate = seen.pixelColor(seen.width() / 2, seen.height() / 2).red();
        QList<int> found;
        for (int y = seen.height() / 5; y < seen.height() * 4 / 5; ++y) {
            if (seen.pixelColor(stem, y).red() > plate + 10) {
                found.append(y);
            }
        }
        return found;
    };
    field.clearFocus();
    field.setPlaceholderText(QStringLiteral("HHH"));
    const QList<int> placeholder = rows();

    field.setText(QStringLiteral("HHH"));

    EXPECT_GT(placeholder.size(), 10);
    EXPECT_EQ(rows().last(), placeholder.last());
}

TEST_F(Caret, staysTwoPointsClearOfAPlaceholderAtTheRight) {
    field.setPlaceholderText(QStringLiteral("Your name"));
    field.setAlignment(Qt::AlignRight);
    const double pixel = 1 / field.devicePixelRatioF();

    const double left = caretColumns().constFirst();

    EXPECT_GE(left - (textColumns().constLast() + pixel), 2 - pixel / 2);
    EXPECT_LE(left - (textColumns().constLast() + pixel), 3.5);
}

TEST_F(Caret, isBesideThePlaceholderInARightToLeftLayout) {
    field.setPlaceholderText(QStringLiteral("Your name"));
    field.setLayoutDirection(Qt::RightToLeft);

    EXPECT_GT(caretColumns().constFirst(), textColumns().constLast());
}

TEST_F(Caret, isTheOnlyThingThatTheFocusAdds) {
    const QString text = QStringLiteral("Mira Field");
    field.setText(text);
    for (int position = 0; position <= text.size(); ++position) {
        field.setFocus();
        field.setCursorPosition(position);
        const QList<double> caret = caretColumns();
        EXPECT_FALSE(caret.isEmpty());

        for (const double changed : columnsChangedByFocus()) {
            EXPECT_TRUE(caret.contains(changed)) << "at " << changed << " for " << position;
        }
    }
}

TEST_F(Caret, isAtNeitherEndOfASelection) {
    field.setText(QStringLiteral("Mira Field"));
    field.setSelection(5, 2);
    const QImage caretAtTheEnd = picture(field, field.devicePixelRatioF());

    field.setSelection(7, -2);

    EXPECT_EQ(picture(field, field.devicePixelRatioF()), caretAtTheEnd);
}

TEST_F(Caret, isHiddenWithoutTheFocusAndOverASelection) {
    field.setText(QStringLiteral("HH"));
    EXPECT_FALSE(caretColumns().isEmpty());

    field.selectAll();
    EXPECT_TRUE(caretColumns().isEmpty());

    field.deselect();
    field.clearFocus();
    EXPECT_TRUE(caretColumns().isEmpty());
}

TEST_F(Caret, followsTheTextOfAnInputMethodUnlessThatHidesIt) {
    compose(QStringLiteral("HH"), 1);
    ASSERT_FALSE(caretColumns().isEmpty());
    EXPECT_GT(caretColumns().first(), textColumns().last());

    compose(QStringLiteral("HH"), 0);
    EXPECT_TRUE(caretColumns().isEmpty());
}
