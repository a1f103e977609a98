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
    require(!leaders.empty() && leaders.size() <= 10, "one to ten leaders");
    for (std::size_t i = 1; i < leaders.size(); ++i) {
        require(leaders[i - 1].pace == leaders[i].pace, "leaders share their pace");
        require(leaders[i - 1].score >= leaders[i].score, "leaders fall in score");
    }
}

}  // namespace

/// Whatever loads is stored, loads again and is the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const HighScores table(std::string_view(reinterpret_cast<const char*>(data), size));
    const std::string stored = table.encoded();
    const HighScores again{std::string_view(stored)};
    require(again == table, "what loads is the same after being stored");
    require(again.encoded() == stored, "what is stored is the same after being loaded");
    if (!table.entries().empty()) {
        checkLeaders(table);
    }
    return 0;
}
