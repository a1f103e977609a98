#pragma once

#include <fcntl.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

/// Another program, started by a test and gone with it. What it writes to its standard output
/// comes through a pipe; its standard error is dropped.
class ChildProcess {
public:
    /// Looks `command[0]` up as a shell would; throws when no process can be made.
    explicit ChildProcess(std::vector<std::string> command) {
        std::vector<char*> arguments;
        for (std::string& argument : command) {
            arguments.push_back(argument.data());
        }
        arguments.push_back(nullptr);
        std::array<int, 2> ends{};
        if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
            throw std::runtime_error("no pipe");
        }
        const pid_t parent = ::getpid();
        process_ = ::fork();
        if (process_ == 0) {
            become(arguments, ends[1], parent);
        }
        ::close(ends[1]);
        output_ = ends[0];
        if (process_ < 0) {
            throw std::runtime_error("no process");
        }
    }
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    ~ChildProcess() {
        kill();
        ::close(output_);
    }

    void send(int signal) const {
        if (process_ > 0) {
            ::kill(process_, signal);
        }
    }

    /// Ends it in the middle of whatever it does. Does nothing to one that has ended.
    void kill() {
        send(SIGKILL);
        static_cast<void>(wait());
    }

    /// Waits for its end; its exit status, or -1 when a signal ended it.
    [[nodiscard]] int wait() {
        if (process_ > 0) {
            int status = 0;
            ::waitpid(std::exchange(process_, 0), &status, 0);
            exit_ = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        }
        return exit_;
    }

    /// Everything it has written since the last call, up to its end.
    [[nodiscard]] std::string output() const {
        std::string text;
        std::array<char, 4096> piece{};
        for (ssize_t count = 0; (count = ::read(output_, piece.data(), piece.size())) > 0;) {
            text.append(piece.data(), static_cast<std::size_t>(count));
        }
        return text;
    }

private:
    [[noreturn]] static void become(const std::vector<char*>& arguments, int output, pid_t parent) {
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (::getppid() == parent) {
            ::dup2(output, STDOUT_FILENO);
            ::dup2(::open("/dev/null", O_WRONLY | O_CLOEXEC), STDERR_FILENO);
            ::execvp(arguments[0], arguments.data());
        }
        ::_exit(127);
    }

    pid_t process_ = 0;
    int output_ = -1;
    int exit_ = -1;
};
