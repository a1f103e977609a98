#pragma once

#include <fcntl.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <stdexcept>
#include <utility>

/// A child process with a pipe to the test. Killed on destruction and when the test process exits.
class PipedProcess {
public:
    PipedProcess(const PipedProcess&) = delete;
    PipedProcess& operator=(const PipedProcess&) = delete;

    void send(int signal) const {
        if (process_ > 0) {
            ::kill(process_, signal);
        }
    }

    /// Sends SIGKILL and waits. Does nothing after its end.
    void kill() {
        send(SIGKILL);
        static_cast<void>(wait());
    }

    /// Waits for its end. Returns the exit status, or -1 when a signal killed it.
    [[nodiscard]] int wait() {
        if (process_ > 0) {
            int status = 0;
            ::waitpid(std::exchange(process_, 0), &status, 0);
            exit_ = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        }
        return exit_;
    }

protected:
    /// Runs `child(writeEnd)` in a fork, which exits with status 0 when that returns. Throws when
    /// pipe2() or fork() fails.
    template <typename Child>
    explicit PipedProcess(Child child) {
        std::array<int, 2> ends{};
        if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
            throw std::runtime_error("pipe2 failed");
        }
        const pid_t parent = ::getpid();
        process_ = ::fork();
        if (process_ == 0) {
            ::prctl(PR_SET_PDEATHSIG, SIGKILL);
            if (::getppid() == parent) {
                child(ends[1]);
            }
            ::_exit(0);
        }
        ::close(ends[1]);
        readEnd_ = ends[0];
        if (process_ < 0) {
            ::close(readEnd_);
            throw std::runtime_error("fork failed");
        }
    }
    ~PipedProcess() {
        kill();
        ::close(readEnd_);
    }

    [[nodiscard]] int readEnd() const { return readEnd_; }

private:
    pid_t process_ = 0;
    int readEnd_ = -1;
    int exit_ = -1;
};
