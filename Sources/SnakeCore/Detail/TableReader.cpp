#include "SnakeCore/Detail/TableReader.hpp"

#include <locale.h>
#if __has_include(<xlocale.h>)
#include <xlocale.h>  // uselocale() on macOS
#endif

#include <cmath>
#include <cstddef>
#include <nlohmann/json.hpp>
#include <utility>

namespace SnakeCore::Detail {
namespace {

/// Switches the calling thread to the "C" locale until destroyed. nlohmann/json 3.11 reads numbers
/// with strtod(), so that the locale of the process would decide about the decimal point.
class CLocale {
public:
    CLocale() : before_(::uselocale(locale())) {}
    CLocale(const CLocale&) = delete;
    CLocale& operator=(const CLocale&) = delete;
    ~CLocale() { ::uselocale(before_); }

private:
    static locale_t locale() {
        static const locale_t c = ::newlocale(LC_ALL_MASK, "C", nullptr);
        return c;
    }

    locale_t before_;
};

}  // namespace

/// SAX handler that builds entries without a DOM, which would take twice as long. Returning false
/// from a callback aborts the parse. Nesting level 1 is the table and 2 an entry; deeper levels are
/// the values of unknown members, which are skipped.
class TableReader : public nlohmann::json_sax<nlohmann::json> {
public:
    std::vector<HighScore> takeEntries() { return std::move(entries_); }

    bool null() override { return skip(); }
    bool boolean(bool) override { return skip(); }
    bool binary(binary_t&) override { return false; }

    bool number_integer(number_integer_t value) override {
        return number(value, static_cast<double>(value));
    }

    bool number_unsigned(number_unsigned_t value) override {
        return number(std::in_range<std::int64_t>(value)
                          ? std::optional(static_cast<std::int64_t>(value))
                          : std::nullopt,
                      static_cast<double>(value));
    }

    bool number_float(number_float_t value, const string_t& digits) override {
        // 120.0 and 1.2e2 are integers too. Digits alone arrive here only if they overflow 64 bits.
        constexpr double limit = 0x1p63;
        const bool digitsOnly = digits.find_first_of(".eE") == string_t::npos;
        const bool integer =
            !digitsOnly && value >= -limit && value < limit && std::trunc(value) == value;
        return number(integer ? std::optional(static_cast<std::int64_t>(value)) : std::nullopt,
                      value);
    }

    bool string(string_t& value) override {
        switch (member_) {
            case Member::id:
                return store(entry_.id, UUID::parse(value));
            case Member::name:
                return store(entry_.name, std::optional(std::move(value)));
            case Member::pace:
                return store(entry_.pace, std::optional(std::move(value)));
            default:
                return skip();
        }
    }

    bool key(string_t& name) override {
        if (level_ == entryLevel) {
            member_ = memberNamed(name);
        }
        return true;
    }

    bool start_object(std::size_t) override { return enter(entryLevel); }
    bool start_array(std::size_t) override { return enter(tableLevel); }

    bool end_object() override {
        if (level_-- != entryLevel) {
            return true;
        }
        auto& [id, name, score, pace, date] = entry_;
        if (!id || !name || !score || !pace || !date) {
            return false;
        }
        // Not emplace_back(): the constructor is private to this class.
        entries_.push_back({*id, std::move(*name), *score, std::move(*pace), *date});
        entry_ = {};
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

    struct Entry {
        std::optional<UUID> id;
        std::optional<std::string> name;
        std::optional<std::int64_t> score;
        std::optional<std::string> pace;
        std::optional<Date> date;
    };

    /// Of duplicate members the first counts: a later one is treated as unknown.
    [[nodiscard]] Member memberNamed(std::string_view key) const {
        return key == "id" && !entry_.id         ? Member::id
               : key == "name" && !entry_.name   ? Member::name
               : key == "score" && !entry_.score ? Member::score
               : key == "pace" && !entry_.pace   ? Member::pace
               : key == "date" && !entry_.date   ? Member::date
                                                 : Member::other;
    }

    /// Begins an array or object, which on the first two levels must be the one that belongs there.
    bool enter(int expectedLevel) {
        ++level_;
        return level_ <= entryLevel ? level_ == expectedLevel
                                    : level_ <= deepestLevel && member_ == Member::other;
    }

    /// Ignores a value inside an unknown member; anywhere else it is an error.
    [[nodiscard]] bool skip() const { return level_ >= entryLevel && member_ == Member::other; }

    /// A number read; `score` is nothing when it is not an integer of 64 bits.
    bool number(std::optional<std::int64_t> score, double date) {
        return member_ == Member::score  ? store(entry_.score, score)
               : member_ == Member::date ? store(entry_.date, std::optional(Date{date}))
                                         : skip();
    }

    /// Ends the member. False when it has no valid value.
    template <typename Field>
    bool store(std::optional<Field>& field, std::optional<Field> value) {
        field = std::move(value);
        member_ = Member::other;
        return field.has_value();
    }

    std::vector<HighScore> entries_;
    int level_ = 0;
    Member member_ = Member::other;
    Entry entry_;
};

std::optional<std::vector<HighScore>> readTable(std::string_view json) {
    // The parser treats a NUL byte as the end of the text and would ignore what follows.
    if (json.find('\0') != std::string_view::npos) {
        return std::nullopt;
    }
    const CLocale cLocale;
    TableReader reader;
    if (!nlohmann::json::sax_parse(json, &reader)) {
        return std::nullopt;
    }
    return reader.takeEntries();
}

}  // namespace SnakeCore::Detail
