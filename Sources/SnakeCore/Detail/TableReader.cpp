#include "SnakeCore/Detail/TableReader.hpp"

#include <cmath>
#include <cstddef>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <utility>

namespace SnakeCore {

/// Takes the parser's events straight into entries; an event that has no place in a table ends the
/// parse. Levels: 1 is the table, 2 an entry, anything deeper the inside of a member that is not
/// ours and is passed over.
class TableReader : public nlohmann::json_sax<nlohmann::json> {
public:
    std::vector<HighScore> takeEntries() { return std::move(entries_); }

    bool null() override { return passOver(); }
    bool boolean(bool) override { return passOver(); }
    bool binary(binary_t&) override { return false; }

    bool number_integer(number_integer_t value) override {
        return member_ == Member::score  ? store(score_, value)
               : member_ == Member::date ? store(date_, static_cast<double>(value))
                                         : passOver();
    }

    bool number_unsigned(number_unsigned_t value) override {
        return member_ == Member::score ? std::in_range<std::int64_t>(value) &&
                                              store(score_, static_cast<std::int64_t>(value))
               : member_ == Member::date ? store(date_, static_cast<double>(value))
                                         : passOver();
    }

    bool number_float(number_float_t value, const string_t& digits) override {
        // 120.0 and 1.2e2 are integers too; plain digits come here when they fit no integer.
        constexpr double limit = 0x1p63;
        const bool plainDigits = digits.find_first_of(".eE") == string_t::npos;
        return member_ == Member::score ? !plainDigits && value >= -limit && value < limit &&
                                              std::trunc(value) == value &&
                                              store(score_, static_cast<std::int64_t>(value))
               : member_ == Member::date ? store(date_, value)
                                         : passOver();
    }

    bool string(string_t& value) override {
        switch (member_) {
            case Member::id:
                id_ = UUID::parse(value);
                return id_.has_value() && close();
            case Member::name:
                return store(name_, std::move(value));
            case Member::pace:
                return store(pace_, std::move(value));
            default:
                return passOver();
        }
    }

    bool key(string_t& name) override {
        if (level_ == entryLevel) {
            member_ = memberNamed(name);
        }
        return true;
    }

    bool start_object(std::size_t) override { return open(entryLevel); }
    bool start_array(std::size_t) override { return open(tableLevel); }

    bool end_object() override {
        if (level_-- != entryLevel) {
            return true;
        }
        if (!id_ || !name_ || !score_ || !pace_ || !date_) {
            return false;
        }
        // Not emplaced: only this class may call the constructor.
        entries_.push_back({*id_, std::move(*name_), *score_, std::move(*pace_), *date_});
        id_.reset();
        name_.reset();
        score_.reset();
        pace_.reset();
        date_.reset();
        return true;
    }

    bool end_array() override {
        --level_;
        return true;
    }

    bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception&) override {
        return false;
    }

private:
    enum class Member { other, id, name, score, pace, date };

    static constexpr int tableLevel = 1;
    static constexpr int entryLevel = 2;
    static constexpr int deepestLevel = 512;

    /// The member that a key opens. The first of duplicate members counts: a later one is none of
    /// ours.
    [[nodiscard]] Member memberNamed(std::string_view key) const {
        if (key == "id" && !id_) {
            return Member::id;
        }
        if (key == "name" && !name_) {
            return Member::name;
        }
        if (key == "score" && !score_) {
            return Member::score;
        }
        if (key == "pace" && !pace_) {
            return Member::pace;
        }
        return key == "date" && !date_ ? Member::date : Member::other;
    }

    /// A list or an object begins: the table, an entry, or part of a member that is not ours.
    bool open(int expectedLevel) {
        ++level_;
        return level_ <= entryLevel ? level_ == expectedLevel
                                    : level_ <= deepestLevel && member_ == Member::other;
    }

    /// A value that no member of ours takes is fine within a member that is not ours, and only
    /// there.
    [[nodiscard]] bool passOver() const { return level_ >= entryLevel && member_ == Member::other; }

    template <typename Field, typename Value>
    bool store(std::optional<Field>& field, Value&& value) {
        field = Field{std::forward<Value>(value)};
        return close();
    }

    bool close() {
        member_ = Member::other;
        return true;
    }

    std::vector<HighScore> entries_;
    int level_ = 0;
    Member member_ = Member::other;
    std::optional<UUID> id_;
    std::optional<std::string> name_;
    std::optional<std::int64_t> score_;
    std::optional<std::string> pace_;
    std::optional<Date> date_;
};

std::optional<std::vector<HighScore>> readTable(std::string_view json) {
    // The parser takes a NUL byte for the end of the text.
    if (json.find('\0') != std::string_view::npos) {
        return std::nullopt;
    }
    TableReader reader;
    if (!nlohmann::json::sax_parse(json, &reader)) {
        return std::nullopt;
    }
    return reader.takeEntries();
}

}  // namespace SnakeCore
