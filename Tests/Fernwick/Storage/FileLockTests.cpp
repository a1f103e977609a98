#include <gtest/gtest.h>

#include <thread>

#include "Storage/FileLock.hpp"
#include "Support/TemporaryFolder.hpp"

using std::chrono::milliseconds;
using Storage::FileLock;

namespace {

constexpr milliseconds immediately{0};
constexpr milliseconds longTimeout{60'000};

class FileLockTest : public testing::Test {
protected:
    [[nodiscard]] std::filesystem::path path() const { return folder_.path() / "file.lock"; }

private:
    TemporaryFolder folder_;
};

}  // namespace

TEST_F(FileLockTest, excludesOthersUntilDestroyed) {
    auto held = FileLock::acquire(path(), immediately);
    ASSERT_TRUE(held && held->excludesOthers());

    EXPECT_FALSE(FileLock::acquire(path(), immediately));
    held.reset();
    EXPECT_TRUE(FileLock::acquire(path(), immediately));
}

TEST_F(FileLockTest, isWaitedForUntilTheTimeout) {
    auto held = FileLock::acquire(path(), immediately);
    ASSERT_TRUE(held);
    std::thread other([&held] {
        std::this_thread::sleep_for(milliseconds(50));
        held.reset();
    });

    const auto lock = FileLock::acquire(path(), longTimeout);

    other.join();
    EXPECT_TRUE(lock);
}
