#include "SnakeCore/Date.hpp"

#include <chrono>

namespace SnakeCore {

Date Date::now() {
    using namespace std::chrono;
    constexpr sys_days reference{year{2001} / January / 1};
    return {duration<double>(system_clock::now() - reference).count()};
}

}  // namespace SnakeCore
