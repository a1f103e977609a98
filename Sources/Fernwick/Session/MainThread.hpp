#pragma once

/// Aborts with a message that names `line` unless it is called on the main thread. `line` is the
/// caller's; clang 14 does not support std::source_location.
void assertMainThread(int line = __builtin_LINE());
