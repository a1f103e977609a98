#pragma once

#include <QLoggingCategory>

/// The category "fernwick.window": state and size changes. Prints only when QT_LOGGING_RULES
/// enables it.
inline Q_LOGGING_CATEGORY(windowLog, "fernwick.window", QtFatalMsg)
