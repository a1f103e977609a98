#include "SnakeCore/Graphemes.hpp"

#include <unicode/ubrk.h>
#include <unicode/utext.h>

#include <cstdint>
#include <limits>
#include <memory>
#include <stdexcept>

namespace SnakeCore {
namespace {

struct Close {
    void operator()(UBreakIterator* iterator) const { ubrk_close(iterator); }
    void operator()(UText* text) const { utext_close(text); }
};

void require(UErrorCode status) {
    if (U_FAILURE(status)) {
        throw std::runtime_error(u_errorName(status));
    }
}

/// One iterator per thread: creating one takes a thousand times as long as cleaning a name.
UBreakIterator* characterIterator() {
    thread_local const auto iterator = [] {
        constexpr const char* rootLocale = "";
        UErrorCode status = U_ZERO_ERROR;
        std::unique_ptr<UBreakIterator, Close> created(
            ubrk_open(UBRK_CHARACTER, rootLocale, nullptr, 0, &status));
        require(status);
        return created;
    }();
    return iterator.get();
}

}  // namespace

void forEachCharacter(std::string_view utf8, const std::function<bool(std::string_view)>& visit) {
    if (utf8.size() >= std::numeric_limits<std::int32_t>::max()) {
        throw std::length_error("text is too long to be split into characters");
    }
    UErrorCode status = U_ZERO_ERROR;
    const char* bytes = utf8.empty() ? "" : utf8.data();
    const std::unique_ptr<UText, Close> text(
        utext_openUTF8(nullptr, bytes, static_cast<std::int64_t>(utf8.size()), &status));
    UBreakIterator* const iterator = characterIterator();
    ubrk_setUText(iterator, text.get(), &status);
    require(status);
    auto start = static_cast<std::size_t>(ubrk_first(iterator));
    for (auto end = ubrk_next(iterator); end != UBRK_DONE; end = ubrk_next(iterator)) {
        const auto next = static_cast<std::size_t>(end);
        if (!visit(utf8.substr(start, next - start))) {
            return;
        }
        start = next;
    }
}

std::string_view firstCharacters(std::string_view utf8, std::size_t count) {
    std::size_t length = 0;
    forEachCharacter(utf8, [&](std::string_view character) {
        if (count == 0) {
            return false;
        }
        --count;
        length += character.size();
        return true;
    });
    return utf8.substr(0, length);
}

}  // namespace SnakeCore
