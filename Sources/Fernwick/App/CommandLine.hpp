#pragma once

#include <optional>

/// The program's version, such as "1.0.0".
[[nodiscard]] const char* programVersion();

/// Reads the arguments of the program, `argv[0]` included. Returns nothing if the game should
/// start. Otherwise returns the exit status, after printing either what --help, --version or
/// --export-scores asks for (0; 1 if stdout cannot be written or the scores cannot be read) or, in
/// one line on stderr, which argument is not accepted (2). Needs no QApplication. May reorder the
/// arguments.
[[nodiscard]] std::optional<int> handleCommandLine(int argc, char* argv[]);
