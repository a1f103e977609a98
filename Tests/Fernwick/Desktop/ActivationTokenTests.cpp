#include <gtest/gtest.h>
#include <unistd.h>

#include <QtGlobal>
#include <atomic>
#include <cstring>
#include <thread>

#include "Desktop/ActivationToken.hpp"
#include "Support/EnvironmentVariable.hpp"

namespace {

constexpr const char* variable = "XDG_ACTIVATION_TOKEN";

class ActivationTokenTest : public testing::Test {
protected:
    ActivationTokenTest() { Desktop::reserveActivationToken(); }

private:
    EnvironmentVariable inherited_{variable, nullptr};
};

std::vector<char*> otherVariables() {
    std::vector<char*> others;
    for (char** entry = environ; *entry != nullptr; ++entry) {
        if (std::strncmp(*entry, variable, std::strlen(variable)) != 0) {
            others.push_back(*entry);
        }
    }
    return others;
}

}  // namespace

TEST_F(ActivationTokenTest, isUnsetUntilThereIsOne) {
    EXPECT_EQ(std::getenv(variable), nullptr);
}

TEST_F(ActivationTokenTest, isReplacedByTheNext) {
    for (const char* token : {"first", "a longer one", "x"}) {
        Desktop::setActivationToken(token);

        EXPECT_EQ(qgetenv(variable), token);
    }
}

TEST_F(ActivationTokenTest, canBeSetAgainAfterQtHasRemovedIt) {
    for (const char* token : {"first", "second", "third"}) {
        Desktop::setActivationToken(token);
        EXPECT_EQ(qgetenv(variable), token);
        qunsetenv(variable);
        EXPECT_EQ(std::getenv(variable), nullptr);
    }
}

TEST_F(ActivationTokenTest, neverMovesTheEnvironment) {
    char** const before = environ;
    const std::vector<char*> others = otherVariables();
    for (int i = 0; i < 10; ++i) {
        Desktop::setActivationToken(QByteArray::number(i));
        EXPECT_EQ(environ, before);
        EXPECT_EQ(otherVariables(), others);

        qunsetenv(variable);
        EXPECT_EQ(environ, before);
        EXPECT_EQ(otherVariables(), others);
    }
}

TEST_F(ActivationTokenTest, isSetEvenAfterAnotherVariableWasAddedOrRemoved) {
    {
        const EnvironmentVariable added("FERNWICK_TEST_VARIABLE", "added");
        Desktop::setActivationToken("with it");
        EXPECT_EQ(qgetenv(variable), "with it");
        qunsetenv(variable);
    }
    Desktop::setActivationToken("without it");
    EXPECT_EQ(qgetenv(variable), "without it");
}

TEST_F(ActivationTokenTest, isLeftAloneByAnEmptyOneAndOneThatIsTooLong) {
    const QByteArray longest(1023, 'x');
    Desktop::setActivationToken(longest);

    Desktop::setActivationToken("");
    Desktop::setActivationToken(QByteArray(1024, 'y'));

    EXPECT_EQ(qgetenv(variable), longest);
}

TEST_F(ActivationTokenTest, canBeSetWhileAnotherThreadReadsTheEnvironment) {
    const EnvironmentVariable other("FERNWICK_TEST_VARIABLE", "kept");
    Desktop::reserveActivationToken();
    std::atomic<bool> done = false;
    std::atomic<int> misses = 0;
    std::thread reader([&] {
        while (!done) {
            const char* value = std::getenv("FERNWICK_TEST_VARIABLE");
            misses += value == nullptr || std::strcmp(value, "kept") != 0 ? 1 : 0;
        }
    });

    for (int i = 0; i < 20'000; ++i) {
        Desktop::setActivationToken("token");
        qunsetenv(variable);
    }

    done = true;
    reader.join();
    EXPECT_EQ(misses, 0);
}
