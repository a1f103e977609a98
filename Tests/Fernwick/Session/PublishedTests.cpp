#include <gtest/gtest.h>

#include <QCoreApplication>
#include <vector>

#include "Session/ChangeObserver.hpp"
#include "Session/Published.hpp"

namespace {

class Counter : public ObservableObject {
public:
    Published<int> value{*this, 1};
    Published<int> other{*this, 1};
};

}  // namespace

TEST(Published, announcesAChangeBeforeItStores) {
    Counter counter;
    std::vector<int> seen;
    QObject::connect(&counter, &ObservableObject::objectWillChange, &counter,
                     [&] { seen.push_back(counter.value); });

    counter.value = 2;

    EXPECT_EQ(seen, std::vector{1});
    EXPECT_EQ(counter.value, 2);
}

TEST(Published, announcesAChangeInPlaceOnce) {
    Counter counter;
    int announcements = 0;
    QObject::connect(&counter, &ObservableObject::objectWillChange, &counter,
                     [&] { ++announcements; });

    const int returned = counter.value.mutate([](int& value) { return value += 4; });

    EXPECT_EQ(announcements, 1);
    EXPECT_EQ(returned, 5);
    EXPECT_EQ(counter.value, 5);
}

TEST(ChangeObserver, refreshesOnceForSeveralChangesInOneTurn) {
    Counter counter;
    std::vector<int> seen;
    const ChangeObserver observer(counter, [&] { seen.push_back(counter.value); });

    counter.value = 2;
    counter.other = 2;
    counter.value = 3;
    EXPECT_TRUE(seen.empty());
    QCoreApplication::processEvents();

    EXPECT_EQ(seen, std::vector{3});
}

TEST(ChangeObserver, seesAChangeMadeWhileItRefreshes) {
    Counter counter;
    std::vector<int> seen;
    const ChangeObserver observer(counter, [&] {
        seen.push_back(counter.value);
        if (counter.value == 2) {
            counter.value = 3;
        }
    });

    counter.value = 2;
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();

    EXPECT_EQ(seen, (std::vector{2, 3}));
}

TEST(ChangeObserver, refreshesAtOnceWhenThatIsDueAndNotAgainOnTheNextTurn) {
    Counter counter;
    std::vector<int> seen;
    const ChangeObserver observer(counter, [&] { seen.push_back(counter.value); });

    counter.value = 2;
    Q_EMIT counter.refreshDue();
    EXPECT_EQ(seen, std::vector{2});
    QCoreApplication::processEvents();

    EXPECT_EQ(seen, std::vector{2});
}

TEST(ChangeObserver, asksForNothingOnceItIsGone) {
    Counter counter;
    int refreshes = 0;
    {
        const ChangeObserver observer(counter, [&] { ++refreshes; });
        counter.value = 2;
    }

    QCoreApplication::processEvents();

    EXPECT_EQ(refreshes, 0);
}
