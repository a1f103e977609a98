#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "Require.hpp"
#include "SnakeCore/HighScores.hpp"

namespace {

using namespace SnakeCore;

void checkLeaders(const HighScores& table) {
    const auto leaders = table.leaders(table.entries().front().pace);
    require(!leaders.empty() && leaders.size() <= 10, "there are one to ten leaders");
    for (std::size_t i = 1; i < leaders.size(); ++i) {
        require(leaders[i - 1].pace == leaders[i].pace, "all leaders have the same pace");
        require(leaders[i - 1].score >= leaders[i].score, "leaders are sorted by descending score");
    }
}

}  // namespace

/// A table that was read equals itself after being written and read again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const HighScores table(std::string_view(reinterpret_cast<const char*>(data), size));
    const std::string stored = table.encoded();
    const HighScores again{std::string_view(stored)};
    require(again == table, "a table equals itself after being written and read");
    require(again.encoded() == stored, "writing a table that was read gives the same bytes");
    if (!table.entries().empty()) {
        checkLeaders(table);
    }
    return 0;
}
