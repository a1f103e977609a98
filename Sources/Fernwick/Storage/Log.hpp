#pragma once

#include <QLoggingCategory>
#include <cerrno>
#include <system_error>

namespace Storage {

/// The category "fernwick.storage". Prints only when QT_LOGGING_RULES enables it.
Q_DECLARE_LOGGING_CATEGORY(storageLog)

/// Returns `succeeded`. When false, logs `step` with the error text of errno, which it preserves.
inline bool logFailure(bool succeeded, const char* step) {
    if (!succeeded) {
        const int error = errno;
        qCWarning(storageLog, "%s failed: %s", step,
                  std::generic_category().message(error).c_str());
        errno = error;
    }
    return succeeded;
}

}  // namespace Storage
