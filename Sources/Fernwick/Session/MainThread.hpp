#pragma once

#include <source_location>

/// Everything of the application runs on the main thread. Anywhere else this is a programming
/// error: it says which line was reached off the main thread and aborts the program.
void assertMainThread(const std::source_location& where = std::source_location::current());
