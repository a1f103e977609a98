#pragma once

#include <QByteArray>
#include <chrono>
#include <string_view>

enum class Answer {
    some,    ///< somebody is there and speaks
    none,    ///< somebody is there and says nothing
    nobody,  ///< nobody is there, or left at once
};

/// Whether there is anybody who speaks at the local address `name` (see `LocalAddress`): says
/// `words`, waits at most `patience` for the first byte of an answer, and leaves.
[[nodiscard]] Answer greet(const QByteArray& name, std::string_view words,
                           std::chrono::milliseconds patience);
