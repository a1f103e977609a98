#include "Desktop/ActivationToken.hpp"

#include <unistd.h>

#include <QtGlobal>
#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <string_view>
#include <utility>
#include <vector>

namespace Desktop {

namespace {

constexpr const char* variable = "XDG_ACTIVATION_TOKEN";
constexpr std::size_t valueOffset = std::string_view("XDG_ACTIVATION_TOKEN=").size();
constexpr qsizetype maximumSize = 1023;

// Both are part of the environment until the process ends.
char entry[valueOffset + maximumSize + 1] = "XDG_ACTIVATION_TOKEN=";
// Never destroyed: destructors of other globals may still call getenv().
std::vector<char*>& variables = *new std::vector<char*>;

}  // namespace

void reserveActivationToken() {
    const QByteArray inherited = qgetenv(variable);
    qunsetenv(variable);
    // Use our own array, because setenv() may reallocate one that it has allocated.
    std::vector<char*> copy;
    for (char** other = environ; *other != nullptr; ++other) {
        copy.push_back(*other);
    }
    copy.insert(copy.end(), 2, nullptr);
    environ = copy.data();
    variables = std::move(copy);
    setActivationToken(inherited);
}

void setActivationToken(const QByteArray& token) {
    if (token.isEmpty() || token.size() > maximumSize) {
        return;
    }
    // Including the null terminator.
    std::copy_n(token.constData(), token.size() + 1, entry + valueOffset);
    char** slot = environ;
    while (*slot != nullptr && *slot != entry) {
        ++slot;
    }
    if (environ == variables.data()) {
        std::atomic_ref(*slot).store(entry);
    } else {
        // setenv() has moved the environment to an array without room for one more.
        ::putenv(entry);
    }
}

}  // namespace Desktop
