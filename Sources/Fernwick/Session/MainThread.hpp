#pragma once

/// Everything of the application runs on the main thread. Anywhere else this is a programming
/// error: it says which line was reached off the main thread and aborts the program.
/// The line is the caller's; clang 14 lacks what std::source_location needs.
void assertMainThread(int line = __builtin_LINE());
