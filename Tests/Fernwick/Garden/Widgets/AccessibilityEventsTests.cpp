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

/// What assistive tools are told of `object` while this lives.
class Announcements {
public:
    explicit Announcements(const QObject* object) {
        watched_ = object;
        heard_.clear();
        previous_ = QAccessible::installUpdateHandler(&hear);
    }
    ~Announcements() { QAccessible::installUpdateHandler(previous_); }
    Announcements(const Announcements&) = delete;
    Announcements& operator=(const Announcements&) = delete;

    [[nodiscard]] bool include(QAccessible::Event type) const {
        return std::find(heard_.begin(), heard_.end(), type) != heard_.end();
    }

private:
    static void hear(QAccessibleEvent* event) {
        if (event->object() == watched_) {
            heard_.push_back(event->type());
        }
    }

    static inline const QObject* watched_ = nullptr;
    static inline std::vector<QAccessible::Event> heard_;
    QAccessible::UpdateHandler previous_ = nullptr;
};

/// Qt announces nothing before an accessibility bus has answered it.
class AccessibilityEvents : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(QTest::qWaitFor([] { return QAccessible::isActive(); }));
    }
};

}  // namespace

TEST_F(AccessibilityEvents, tellOfALabelsNewText) {
    Garden::TrackedLabel label(QStringLiteral("No rush."), Garden::serif(35, QFont::Normal),
                               Garden::primaryText);
    const Announcements announcements(&label);

    label.setText(QStringLiteral("Find your flow."));

    EXPECT_TRUE(announcements.include(QAccessible::NameChanged));
}

TEST_F(AccessibilityEvents, tellWhichChoiceBecameCurrent) {
    Garden::ChoiceGroup group({QStringLiteral("Gentle"), QStringLiteral("Classic")},
                              QStringLiteral("Speed"));
    group.setCurrent(0);
    for (const QAbstractButton* choice : group.findChildren<QAbstractButton*>()) {
        const Announcements announcements(choice);
        group.setCurrent(group.current() == 0 ? 1 : 0);
        EXPECT_TRUE(announcements.include(QAccessible::StateChanged));
    }
}

TEST_F(AccessibilityEvents, tellOfANewNumberOnce) {
    Garden::RollingDigits digits(Qt::AlignLeft);
    digits.setValue(70);
    {
        const Announcements announcements(&digits);
        digits.setValue(80);
        EXPECT_TRUE(announcements.include(QAccessible::NameChanged));
        EXPECT_TRUE(announcements.include(QAccessible::ValueChanged));
    }
    const Announcements announcements(&digits);
    digits.setValue(80);
    EXPECT_FALSE(announcements.include(QAccessible::ValueChanged));
}
