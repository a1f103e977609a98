#include "SnakeCore/Detail/TableReader.hpp"

#include <utility>

#include "SnakeCore/Detail/JsonText.hpp"

namespace SnakeCore::Detail {

/// Reads straight into entries, without a document in memory.
class TableReader {
public:
    explicit TableReader(std::string_view json) : json_(json) {}

    std::optional<std::vector<HighScore>> table() {
        const bool valid = json_.array([this] { return entry(); }) && json_.atEnd();
        return valid ? std::optional(std::move(entries_)) : std::nullopt;
    }

private:
    struct Entry {
        std::optional<UUID> id;
        std::optional<std::string> name;
        std::optional<std::int64_t> score;
        std::optional<std::string> pace;
        std::optional<Date> date;
    };

    bool entry() {
        Entry entry;
        const bool valid = json_.object([&](std::string_view key) { return member(entry, key); });
        auto& [id, name, score, pace, date] = entry;
        if (!valid || !id || !name || !score || !pace || !date) {
            return false;
        }
        // Not emplace_back(): the constructor is private to this class.
        entries_.push_back({*id, std::move(*name), *score, std::move(*pace), *date});
        return true;
    }

    /// Of duplicate members the first counts: a later one is treated as unknown.
    bool member(Entry& entry, std::string_view key) {
        if (key == "id" && !entry.id) {
            std::string text;
            return json_.string(text) && (entry.id = UUID::parse(text));
        }
        if (key == "name" && !entry.name) {
            return json_.string(entry.name.emplace());
        }
        if (key == "score" && !entry.score) {
            const std::optional<JsonText::Number> number = json_.number();
            return number && (entry.score = number->integer);
        }
        if (key == "pace" && !entry.pace) {
            return json_.string(entry.pace.emplace());
        }
        if (key == "date" && !entry.date) {
            const std::optional<JsonText::Number> number = json_.number();
            return number && (entry.date = Date{number->value});
        }
        return json_.skip(deepestLevel - 2);
    }

    /// The table and an entry are two levels.
    static constexpr int deepestLevel = 512;

    JsonText json_;
    std::vector<HighScore> entries_;
};

std::optional<std::vector<HighScore>> readTable(std::string_view json) {
    return TableReader(json).table();
}

}  // namespace SnakeCore::Detail
