#include "MainWindow/SessionManagement.hpp"

#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

#include <QByteArray>
#include <QList>
#include <QSysInfo>
#include <QtGlobal>
#include <algorithm>
#include <array>

#include "MainWindow/Greeting.hpp"
#include "Session/LocalSocket.hpp"

namespace {

constexpr const char* addressesVariable = "SESSION_MANAGER";

/// The name of the socket in an address such as "local/this-machine:@/tmp/.ICE-unix/1234"; empty
/// in one of another machine, or of another kind.
QByteArray socketName(const QByteArray& address) {
    const qsizetype colon = address.indexOf(':');
    const QByteArray place = address.left(colon);
    const QByteArray here = QSysInfo::machineHostName().toLocal8Bit();
    if (colon < 0 || (place != "local/" + here && place != "unix/" + here)) {
        return {};
    }
    QByteArray name = address.mid(colon + 1);
    if (name.startsWith('@')) {
        // Lies in no folder.
        name[0] = '\0';
    }
    return name;
}

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

void leaveSilentSessionManagerAlone(std::chrono::milliseconds patience) {
    const QList<QByteArray> addresses = qgetenv(addressesVariable).split(',');
    const auto answers = std::ranges::find_if(addresses, [patience](const QByteArray& address) {
        const QByteArray name = socketName(address);
        // Whoever is called speaks first.
        return !name.isEmpty() && name.size() <= LocalAddress::longest &&
               greet(name, {}, patience) == Answer::some;
    });
    if (answers == addresses.end()) {
        qunsetenv(addressesVariable);
    } else {
        qputenv(addressesVariable, *answers);
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
