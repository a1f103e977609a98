#include "Storage/PreferencesWriter.hpp"

#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <utility>

#include "Storage/Log.hpp"

namespace Storage {

struct PreferencesWriter::Queue {
    Queue(SettingsFile settingsFile, std::chrono::milliseconds interval)
        : file(std::move(settingsFile)), retryInterval(interval) {}

    void run();
    [[nodiscard]] bool writeUnsaved(std::unique_lock<std::mutex>& lock);

    SettingsFile file;  ///< used by the thread only
    const std::chrono::milliseconds retryInterval;

    std::mutex mutex;  ///< guards all that follows
    std::condition_variable wakeThread;
    std::condition_variable attempted;
    SettingsChanges unsaved;
    // Writes are numbered from 1.
    std::uint64_t lastRequested = 0;
    std::uint64_t lastDurable = 0;
    std::uint64_t lastFailed = 0;
    bool closing = false;
    bool finished = false;
};

void PreferencesWriter::Queue::run() {
    std::unique_lock lock(mutex);
    while (true) {
        wakeThread.wait(lock, [this] { return closing || lastDurable != lastRequested; });
        if (lastDurable == lastRequested) {
            break;
        }
        const bool lastAttempt = closing;
        if (writeUnsaved(lock)) {
            continue;
        }
        if (lastAttempt) {
            qCWarning(storageLog, "settings are lost: they could not be written until the end");
            break;
        }
        wakeThread.wait_for(lock, retryInterval,
                            [this] { return closing || lastRequested != lastFailed; });
    }
    finished = true;
    attempted.notify_all();
}

bool PreferencesWriter::Queue::writeUnsaved(std::unique_lock<std::mutex>& lock) {
    SettingsChanges changes = std::exchange(unsaved, {});
    const std::uint64_t request = lastRequested;
    lock.unlock();
    const bool durable = file.write(changes);
    lock.lock();
    if (durable) {
        lastDurable = request;
    } else {
        qCWarning(storageLog, "could not store settings; trying again in %lld ms",
                  static_cast<long long>(retryInterval.count()));
        lastFailed = request;
        changes.insert(std::exchange(unsaved, {}));
        unsaved = std::move(changes);
    }
    attempted.notify_all();
    return durable;
}

PreferencesWriter::PreferencesWriter(SettingsFile file, std::chrono::milliseconds retryInterval)
    : queue_(std::make_shared<Queue>(std::move(file), retryInterval)) {}

PreferencesWriter::~PreferencesWriter() {
    constexpr std::chrono::seconds timeout{5};
    if (!thread_.joinable()) {
        return;
    }
    std::unique_lock lock(queue_->mutex);
    queue_->closing = true;
    queue_->wakeThread.notify_one();
    const bool finished =
        queue_->attempted.wait_for(lock, timeout, [this] { return queue_->finished; });
    lock.unlock();
    if (finished) {
        thread_.join();
    } else {
        qCWarning(storageLog, "the disk does not respond: giving up after %lld s",
                  static_cast<long long>(timeout.count()));
        thread_.detach();
    }
}

void PreferencesWriter::write(const SettingsChanges& changes) {
    if (!thread_.joinable()) {
        thread_ = std::thread([queue = queue_] { queue->run(); });
    }
    const std::lock_guard lock(queue_->mutex);
    queue_->unsaved.insert(changes);
    ++queue_->lastRequested;
    queue_->wakeThread.notify_one();
}

bool PreferencesWriter::flush(std::chrono::milliseconds timeout) const {
    std::unique_lock lock(queue_->mutex);
    const std::uint64_t wanted = queue_->lastRequested;
    queue_->attempted.wait_for(lock, timeout, [&] {
        return queue_->lastDurable >= wanted || queue_->lastFailed >= wanted;
    });
    return queue_->lastDurable >= wanted;
}

}  // namespace Storage
