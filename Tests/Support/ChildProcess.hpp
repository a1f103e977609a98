#pragma once

#include <string>
#include <vector>

#include "Support/PipedProcess.hpp"

/// A program that is killed on destruction. Its stdout is a pipe; its stderr is discarded.
class ChildProcess : public PipedProcess {
public:
    /// Finds `command[0]` in PATH. Throws when fork() fails.
    explicit ChildProcess(std::vector<std::string> command)
        : PipedProcess([&command](int output) { execute(command, output); }) {}

    /// Waits until the process exits and returns its output since the last call.
    [[nodiscard]] std::string output() const {
        std::string text;
        std::array<char, 4096> piece{};
        for (ssize_t count = 0; (count = ::read(readEnd(), piece.data(), piece.size())) > 0;) {
            text.append(piece.data(), static_cast<std::size_t>(count));
        }
        return text;
    }

private:
    [[noreturn]] static void execute(std::vector<std::string>& command, int output) {
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
