#pragma once

#include <cstdint>

class QKeyEvent;

/// The physical key positions the game is played with, on the ANSI layout. The numbers are the
/// hardware key codes of the platform the game was designed on; `physicalKey()` maps to them.
namespace KeyCode {

inline constexpr std::uint16_t a = 0;
inline constexpr std::uint16_t s = 1;
inline constexpr std::uint16_t d = 2;
inline constexpr std::uint16_t w = 13;
inline constexpr std::uint16_t r = 15;
inline constexpr std::uint16_t returnKey = 36;
inline constexpr std::uint16_t space = 49;
inline constexpr std::uint16_t escape = 53;
inline constexpr std::uint16_t leftArrow = 123;
inline constexpr std::uint16_t rightArrow = 124;
inline constexpr std::uint16_t downArrow = 125;
inline constexpr std::uint16_t upArrow = 126;
/// Any key that the game has no use for.
inline constexpr std::uint16_t other = 0xFFFF;

}  // namespace KeyCode

/// The position of the key that `event` is about, whatever letter the keyboard layout puts on it.
/// Events made by programs carry no position; theirs is taken from the letter.
[[nodiscard]] std::uint16_t physicalKey(const QKeyEvent& event);
