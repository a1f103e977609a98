#include "Storage/SettingsFile.hpp"

#include <unistd.h>

#include <chrono>
#include <optional>
#include <utility>

#include "Storage/DurableFile.hpp"
#include "Storage/FileLock.hpp"
#include "Storage/Log.hpp"

namespace fs = std::filesystem;

namespace Storage {

namespace {

/// Locks a file next to the settings file, as each store replaces that file by a new inode.
std::optional<FileLock> lockOf(const DurableFile& file, std::chrono::milliseconds timeout) {
    fs::path path = file.path();
    path += ".lock";
    return FileLock::acquire(path, timeout);
}

std::optional<PreferencesDocument> documentOf(const DurableFile::Reading& reading) {
    return reading.state == DurableFile::State::complete ? PreferencesDocument::read(reading.bytes)
                                                         : std::nullopt;
}

void removeOrphansOf(const DurableFile& file) {
    if (file.orphans().empty()) {
        return;
    }
    // If another process is writing right now, leave it to the next start.
    const auto lock = lockOf(file, std::chrono::milliseconds(0));
    if (lock && lock->excludesOthers()) {
        for (const fs::path& orphan : file.orphans()) {
            ::unlink(orphan.c_str());
        }
    }
}

}  // namespace

SettingsFile::SettingsFile(fs::path path) : path_(std::move(path)) {
    const DurableFile file(path_);
    removeOrphansOf(file);
    const auto reading = file.read(PreferencesDocument::maximumSize);
    const auto stored = documentOf(reading);
    const bool absent = reading.state == DurableFile::State::absent;
    document_ = stored.value_or(PreferencesDocument());
    loaded_ = stored || absent;
    qCDebug(storageLog, "%s: %s", file.path().c_str(),
            stored   ? "loaded"
            : absent ? "absent"
                     : "unreadable, starting with defaults");
}

std::optional<PreferencesDocument> SettingsFile::peek(const fs::path& path) {
    const auto reading = DurableFile(path).read(PreferencesDocument::maximumSize);
    return reading.state == DurableFile::State::absent ? PreferencesDocument()
                                                       : documentOf(reading);
}

bool SettingsFile::write(const SettingsChanges& changes) {
    constexpr std::chrono::seconds lockTimeout{1};
    const DurableFile file(path_);
    if (!file.createFolder()) {
        return false;
    }
    const auto lock = lockOf(file, lockTimeout);
    if (!lock) {
        return false;
    }
    const auto reading = file.read(PreferencesDocument::maximumSize);
    if (reading.state == DurableFile::State::failed) {
        return false;
    }
    // Start from the file, to keep what other processes have stored since. If it has become
    // unreadable, what this process has in memory is the best copy left.
    const auto stored = documentOf(reading);
    document_ = stored.value_or(document_);
    document_.insert(changes.values);
    if (stored == document_) {
        return file.sync();
    }
    const QByteArray bytes = document_.encoded();
    if (PreferencesDocument::read(bytes) != document_) {
        qCWarning(storageLog, "the settings exceed the limits of the file format");
        return false;
    }
    // Also keep a file that was unreadable at the start and is readable now: the player has not
    // seen the values that are about to be replaced.
    const bool worthKeeping = !stored || !loaded_ || changes.keepCopy;
    if (reading.state != DurableFile::State::absent && worthKeeping && !file.setAside()) {
        return false;
    }
    loaded_ = true;
    return file.replace(bytes);
}

}  // namespace Storage
