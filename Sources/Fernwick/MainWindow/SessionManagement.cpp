#include "MainWindow/SessionManagement.hpp"

#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

#include <QByteArray>
#include <QFile>
#include <QList>
#include <algorithm>
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

void leaveMissingSessionManagerAlone() {
    constexpr const char* variable = "SESSION_MANAGER";
    const QByteArray addresses = qgetenv(variable);
    // Only looked up: to knock and go away would be rude to a manager that is there.
    QFile sockets(QStringLiteral("/proc/net/unix"));
    if (addresses.isEmpty() || !sockets.open(QIODevice::ReadOnly)) {
        return;
    }
    const QByteArray listening = sockets.readAll();
    const auto mayAnswer = [&listening](const QByteArray& address) {
        const bool isLocal = address.startsWith("local/") || address.startsWith("unix/");
        const QByteArray path = address.mid(address.indexOf(':') + 1);
        return !isLocal || listening.contains(' ' + path + '\n');
    };
    if (std::ranges::none_of(addresses.split(','), mayAnswer)) {
        qunsetenv(variable);
    }
}

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
