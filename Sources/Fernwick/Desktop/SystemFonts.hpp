#pragma once

#include <span>

/// Whether fontconfig finds the fonts that are installed. The user's fontconfig rules, as for
/// antialiasing and sub-pixel rendering, apply in either case. Fonts that the program has added to
/// fontconfig itself are lost at each change.
namespace Desktop {

/// Leaves them out, so that fontconfig does not compare every one with each font that Qt opens.
/// Before Qt uses the first font.
void leaveOutSystemFonts();

/// Takes them in, except those of the families `leftOut`, which are plain names without XML's
/// special characters. Qt has to look up its fonts anew then.
void takeInSystemFonts(std::span<const char* const> leftOut);

}  // namespace Desktop
