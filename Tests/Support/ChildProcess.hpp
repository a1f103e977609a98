#pragma once

#include <string>
#include <vector>

#include "Support/PipedProcess.hpp"

/// Another program, started by a test and gone with it. What it writes to its standard output
/// comes through a pipe; its standard error is dropped.
class ChildProcess : public PipedProcess {
public:
    /// Looks `command[0]` up as a shell would; throws when no process can be made.
    explicit ChildProcess(std::vector<std::string> command)
        : PipedProcess([&command](int output) { become(command, output); }) {}

    /// Everything it has written since the last call, up to its end.
    [[nodiscard]] std::string output() const {
        std::string text;
        std::array<char, 4096> piece{};
        for (ssize_t count = 0; (count = ::read(readEnd(), piece.data(), piece.size())) > 0;) {
            text.append(piece.data(), static_cast<std::size_t>(count));
        }
        return text;
    }

private:
    [[noreturn]] static void become(std::vector<std::string>& command, int output) {
        std::vector<char*> arguments;
        for (std::string& argument : command) {
            arguments.push_back(argument.data());
        }
        arguments.push_back(nullptr);
        ::dup2(output, STDOUT_FILENO);
        ::dup2(::open("/dev/null", O_WRONLY | O_CLOEXEC), STDERR_FILENO);
        ::execvp(arguments[0], arguments.data());
        ::_exit(127);
    }
};
