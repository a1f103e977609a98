#include "Storage/Log.hpp"

#include <cerrno>
#include <system_error>

namespace Storage {

Q_LOGGING_CATEGORY(storageLog, "fernwick.storage", QtFatalMsg)

bool logFailure(bool succeeded, const char* step) {
    if (!succeeded) {
        const int error = errno;
        qCWarning(storageLog, "%s failed: %s", step,
                  std::generic_category().message(error).c_str());
        errno = error;
    }
    return succeeded;
}

}  // namespace Storage
