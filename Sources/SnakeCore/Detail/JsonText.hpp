#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace SnakeCore::Detail {

/// Reads a JSON text (RFC 8259) from its start to its end. Every function first skips white space
/// and returns false or nothing if the text does not go on with what it reads; then the text must
/// not be read any further.
class JsonText {
public:
    struct Number {
        double value;
        /// Nothing if the number is not an integer of 64 bits. 120.0 and 1.2e2 are integers.
        std::optional<std::int64_t> integer;
    };

    /// A byte order mark at the start of the text is ignored.
    explicit JsonText(std::string_view json);

    /// Reads `character` if it comes next; otherwise reads nothing.
    [[nodiscard]] bool take(char character);
    [[nodiscard]] bool atEnd();

    /// Reads the elements of an array by calling `element`, which returns whether it succeeded.
    [[nodiscard]] bool array(auto element) { return take('[') && list(']', element); }

    /// Reads the members of an object by calling `member` with the name of each.
    [[nodiscard]] bool object(auto member) {
        return take('{') && list('}', [&] {
                   std::string name;
                   return string(name) && take(':') && member(std::string_view(name));
               });
    }

    /// Replaces `text` with the string, which is valid UTF-8 without lone surrogates.
    [[nodiscard]] bool string(std::string& text);
    /// A number too large for a double is invalid, one too small is 0.
    [[nodiscard]] std::optional<Number> number();
    /// Reads any value with at most `levels` levels of arrays and objects.
    [[nodiscard]] bool skip(int levels);

private:
    bool list(char end, auto element) {
        if (take(end)) {
            return true;
        }
        do {
            if (!element()) {
                return false;
            }
        } while (take(','));
        return take(end);
    }

    void skipWhiteSpace();
    bool literal(std::string_view word);
    bool digits();
    bool escape(std::string& text);
    std::optional<char32_t> codeUnit();

    std::string_view rest_;
};

}  // namespace SnakeCore::Detail
