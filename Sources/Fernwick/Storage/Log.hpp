#pragma once

#include <QLoggingCategory>

namespace Storage {

/// The category "fernwick.storage". Prints only when QT_LOGGING_RULES enables it.
Q_DECLARE_LOGGING_CATEGORY(storageLog)

/// Returns `succeeded`. When false, logs `step` with the error text of errno, which it preserves.
bool logFailure(bool succeeded, const char* step);

}  // namespace Storage
