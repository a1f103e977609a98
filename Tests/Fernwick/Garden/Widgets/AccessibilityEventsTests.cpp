#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QTest>
#include <algorithm>
#include <vector>

#include "Garden/Look/Fonts.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Widgets/ChoiceGroup.hpp"
#include "Garden/Widgets/RollingDigits.hpp"
#include "Garden/Widgets/TrackedLabel.hpp"

namespace {

/// Records the accessibility events that `object` sends while the recorder exists.
class EventRecorder {
public:
    explicit EventRecorder(const QObject* object) {
        watched_ = object;
        types_.clear();
        previous_ = QAccessible::installUpdateHandler(&record);
    }
    ~EventRecorder() { QAccessible::installUpdateHandler(previous_); }
    EventRecorder(const EventRecorder&) = delete;
    EventRecorder& operator=(const EventRecorder&) = delete;

    [[nodiscard]] bool include(QAccessible::Event type) const {
        return std::find(types_.begin(), types_.end(), type) != types_.end();
    }

private:
    static void record(QAccessibleEvent* event) {
        if (event->object() == watched_) {
            types_.push_back(event->type());
        }
    }

    static inline const QObject* watched_ = nullptr;
    static inline std::vector<QAccessible::Event> types_;
    QAccessible::UpdateHandler previous_ = nullptr;
};

/// Qt sends no accessibility events before it has connected to the accessibility bus.
class AccessibilityEvents : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(QTest::qWaitFor([] { return QAccessible::isActive(); }));
    }
};

}  // namespace

TEST_F(AccessibilityEvents, reportTheNewNameOfALabel) {
    Garden::TrackedLabel label(QStringLiteral("No rush."), Garden::serif(35, QFont::Normal),
                               Garden::primaryText);
    const EventRecorder events(&label);

    label.setText(QStringLiteral("Find your flow."));

    EXPECT_TRUE(events.include(QAccessible::NameChanged));
}

TEST_F(AccessibilityEvents, reportTheStateChangesOfBothChoices) {
    Garden::ChoiceGroup group({QStringLiteral("Gentle"), QStringLiteral("Classic")},
                              QStringLiteral("Speed"));
    group.setCurrent(0);
    for (const QAbstractButton* choice : group.findChildren<QAbstractButton*>()) {
        const EventRecorder events(choice);
        group.setCurrent(group.current() == 0 ? 1 : 0);
        EXPECT_TRUE(events.include(QAccessible::StateChanged));
    }
}

TEST_F(AccessibilityEvents, reportANewScoreOnce) {
    Garden::RollingDigits digits(Qt::AlignLeft);
    digits.setValue(70);
    {
        const EventRecorder events(&digits);
        digits.setValue(80);
        EXPECT_TRUE(events.include(QAccessible::NameChanged));
    }
    const EventRecorder events(&digits);
    digits.setValue(80);
    EXPECT_FALSE(events.include(QAccessible::NameChanged));
}
