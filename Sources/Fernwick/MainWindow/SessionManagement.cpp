#include "MainWindow/SessionManagement.hpp"

#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

#include <array>

namespace {

// The few names of libICE that are needed. The game does not link it: it is there only where the
// toolkit has loaded it to speak to a session manager.
using Connection = void*;
using NumberOfConnection = int (*)(Connection);
using ErrorHandler = void (*)(Connection);
using SetErrorHandler = ErrorHandler (*)(ErrorHandler);

NumberOfConnection numberOfConnection = nullptr;

/// The toolkit goes on listening to the lost connection, which would tell it for ever that it is
/// lost. A pipe in its place that nobody writes to is silent.
void silence(Connection connection) {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) == 0) {
        // The writing end stays open, or the pipe would tell of its own end.
        ::dup3(ends[0], numberOfConnection(connection), O_CLOEXEC);
        ::close(ends[0]);
    }
}

template <typename Function>
Function find(void* library, const char* name) {
    return reinterpret_cast<Function>(::dlsym(library, name));
}

}  // namespace

void outliveSessionManager() {
    void* library = ::dlopen("libICE.so.6", RTLD_LAZY | RTLD_NOLOAD);
    if (library == nullptr) {
        return;
    }
    const auto setErrorHandler = find<SetErrorHandler>(library, "IceSetIOErrorHandler");
    numberOfConnection = find<NumberOfConnection>(library, "IceConnectionNumber");
    if (setErrorHandler != nullptr && numberOfConnection != nullptr) {
        setErrorHandler(silence);
    }
}
