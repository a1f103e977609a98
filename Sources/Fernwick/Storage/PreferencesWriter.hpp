#pragma once

#include <chrono>
#include <memory>
#include <thread>

#include "Storage/SettingsFile.hpp"

namespace Storage {

/// Writes settings to their file in a thread of its own, so that nobody waits for the disk. What
/// is handed over during a write is written together afterwards: the file goes through states in
/// the order of the calls, but may skip some. The thread starts with the first write and sleeps
/// while there is nothing to do.
class PreferencesWriter {
public:
    /// `retryInterval` is the pause after a write that failed.
    PreferencesWriter(SettingsFile file, std::chrono::milliseconds retryInterval);
    PreferencesWriter(const PreferencesWriter&) = delete;
    PreferencesWriter& operator=(const PreferencesWriter&) = delete;
    /// Waits until everything is written, at most five seconds. A write that has failed is tried
    /// once more.
    ~PreferencesWriter();

    /// Returns at once.
    void write(const SettingsChanges& changes);

    /// Waits until everything handed over so far is durable, and returns true. Returns false once
    /// an attempt to write it has failed, or after `timeout`.
    [[nodiscard]] bool flush(std::chrono::milliseconds timeout) const;

private:
    struct Queue;

    // Shared with the thread, which outlives this object if the disk hangs.
    std::shared_ptr<Queue> queue_;
    std::thread thread_;
};

}  // namespace Storage
