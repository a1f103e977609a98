#pragma once

#include <fcntl.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <stdexcept>
#include <utility>

/// A process that a test starts, reads through a pipe, and takes with it when it ends.
class PipedProcess {
public:
    PipedProcess(const PipedProcess&) = delete;
    PipedProcess& operator=(const PipedProcess&) = delete;

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

protected:
    /// Runs `child(writeEnd)` in a copy of this process, which exits with status 0 when that
    /// returns. Throws when no process can be made.
    template <typename Child>
    explicit PipedProcess(Child child) {
        std::array<int, 2> ends{};
        if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
            throw std::runtime_error("no pipe");
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
            throw std::runtime_error("no process");
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
