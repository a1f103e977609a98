#include <gtest/gtest.h>

#include <thread>

#include "Storage/FileLock.hpp"
#include "Support/TemporaryFolder.hpp"

using std::chrono::milliseconds;

namespace {

constexpr milliseconds noPatience{0};
constexpr milliseconds amplePatience{60'000};

class FileLocks : public testing::Test {
protected:
    [[nodiscard]] std::filesystem::path path() const { return folder_.path() / "file.lock"; }

private:
    TemporaryFolder folder_;
};

}  // namespace

TEST_F(FileLocks, keepOthersOutForAsLongAsTheyLive) {
    auto held = FileLock::acquire(path(), noPatience);
    ASSERT_TRUE(held && held->excludesOthers());

    EXPECT_FALSE(FileLock::acquire(path(), noPatience));
    held.reset();
    EXPECT_TRUE(FileLock::acquire(path(), noPatience));
}

TEST_F(FileLocks, areWaitedForWhileAnotherIsAtWork) {
    auto held = FileLock::acquire(path(), noPatience);
    ASSERT_TRUE(held);
    std::thread other([&held] {
        std::this_thread::sleep_for(milliseconds(50));
        held.reset();
    });

    const auto awaited = FileLock::acquire(path(), amplePatience);

    other.join();
    EXPECT_TRUE(awaited);
}
