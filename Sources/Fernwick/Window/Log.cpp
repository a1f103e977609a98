#include "Window/Log.hpp"

Q_LOGGING_CATEGORY(windowLog, "fernwick.window", QtFatalMsg)
