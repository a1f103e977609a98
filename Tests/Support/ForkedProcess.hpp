#pragma once

#include <poll.h>

#include <cstdint>

#include "Support/PipedProcess.hpp"

/// A copy of this process that does one thing, far cheaper than starting a program. It can
/// report numbers to the test and be ended in the middle of what it does.
class ForkedProcess : public PipedProcess {
public:
    using Report = std::int64_t;

    /// Runs `work(report)` in the copy, where `report` is a function that takes a `Report`. The
    /// copy exits with status 0 when `work` returns. This process must have one thread only.
    template <typename Work>
    explicit ForkedProcess(Work work)
        : PipedProcess([&work](int reports) {
              work([&](Report number) {
                  static_cast<void>(!::write(reports, &number, sizeof number));
              });
          }) {}

    /// Whether a number waits to be asked for, or it has ended.
    [[nodiscard]] bool hasReported() const {
        pollfd end{readEnd(), POLLIN, 0};
        return ::poll(&end, 1, 0) > 0;
    }

    /// Waits for the next number it reports; `otherwise` when it ends without one.
    [[nodiscard]] Report nextReport(Report otherwise) const {
        Report number = 0;
        return ::read(readEnd(), &number, sizeof number) == sizeof number ? number : otherwise;
    }

    /// The last number it reported before its end, or `otherwise`.
    [[nodiscard]] Report lastReport(Report otherwise) const {
        Report last = otherwise;
        for (Report number = 0; ::read(readEnd(), &number, sizeof number) == sizeof number;) {
            last = number;
        }
        return last;
    }
};
