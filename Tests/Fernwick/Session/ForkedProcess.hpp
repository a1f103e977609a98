#pragma once

#include <fcntl.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <stdexcept>
#include <utility>

/// A copy of this process that does one thing, far cheaper than starting a program. It can
/// report numbers to the test and be ended in the middle of what it does.
class ForkedProcess {
public:
    using Report = std::int64_t;

    /// Runs `work(report)` in the copy, where `report` is a function that takes a `Report`. The
    /// copy exits with status 0 when `work` returns. This process must have one thread only.
    template <typename Work>
    explicit ForkedProcess(Work work) {
        std::array<int, 2> ends{};
        if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
            throw std::runtime_error("no pipe");
        }
        process_ = ::fork();
        if (process_ == 0) {
            ::prctl(PR_SET_PDEATHSIG, SIGKILL);
            work([&](Report number) {
                static_cast<void>(!::write(ends[1], &number, sizeof number));
            });
            ::_exit(0);
        }
        ::close(ends[1]);
        reports_ = ends[0];
        if (process_ < 0) {
            throw std::runtime_error("no process");
        }
    }
    ForkedProcess(const ForkedProcess&) = delete;
    ForkedProcess& operator=(const ForkedProcess&) = delete;
    ~ForkedProcess() {
        kill();
        ::close(reports_);
    }

    void kill() {
        if (process_ > 0) {
            ::kill(process_, SIGKILL);
        }
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

    /// Waits for the next number it reports; `otherwise` when it ends without one.
    [[nodiscard]] Report nextReport(Report otherwise) const {
        Report number = 0;
        return ::read(reports_, &number, sizeof number) == sizeof number ? number : otherwise;
    }

    /// The last number it reported before its end, or `otherwise`.
    [[nodiscard]] Report lastReport(Report otherwise) const {
        Report last = otherwise;
        for (Report number = 0; ::read(reports_, &number, sizeof number) == sizeof number;) {
            last = number;
        }
        return last;
    }

private:
    pid_t process_ = 0;
    int reports_ = -1;
    int exit_ = -1;
};
