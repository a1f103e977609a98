#pragma once

#include <poll.h>

#include <cstdint>

#include "Support/PipedProcess.hpp"

/// A fork of this process, which is far cheaper than starting a program. It can report numbers to
/// the test and be killed at any time.
class ForkedProcess : public PipedProcess {
public:
    using Report = std::int64_t;

    /// Runs `work(report)` in the fork, where `report` is a function that takes a `Report`. Exits
    /// with status 0 when `work` returns. This process must be single-threaded.
    template <typename Work>
    explicit ForkedProcess(Work work)
        : PipedProcess([&work](int reports) {
              work([&](Report number) {
                  static_cast<void>(!::write(reports, &number, sizeof number));
              });
          }) {}

    /// Whether `nextReport` would not block.
    [[nodiscard]] bool hasReported() const {
        pollfd end{readEnd(), POLLIN, 0};
        return ::poll(&end, 1, 0) > 0;
    }

    /// Waits for the next report; `otherwise` when the process ends without one.
    [[nodiscard]] Report nextReport(Report otherwise) const {
        Report number = 0;
        return ::read(readEnd(), &number, sizeof number) == sizeof number ? number : otherwise;
    }

    /// Waits for the end of the process; its last report, or `otherwise`.
    [[nodiscard]] Report lastReport(Report otherwise) const {
        Report last = otherwise;
        for (Report number = 0; ::read(readEnd(), &number, sizeof number) == sizeof number;) {
            last = number;
        }
        return last;
    }
};
