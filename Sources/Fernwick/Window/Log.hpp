#pragma once

#include <QLoggingCategory>

/// The category "fernwick.window": state and size changes. Prints only when QT_LOGGING_RULES
/// enables it.
Q_DECLARE_LOGGING_CATEGORY(windowLog)
