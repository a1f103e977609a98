#include "Storage/PreferencesFile.hpp"

#include <pwd.h>
#include <unistd.h>

#include <QtGlobal>
#include <array>
#include <utility>

#include "Storage/DurableFile.hpp"
#include "Storage/FileLock.hpp"
#include "Storage/Log.hpp"

namespace fs = std::filesystem;

namespace Storage {

namespace {

/// Empty unless the variable holds an absolute path.
fs::path environmentPath(const char* name) {
    fs::path path = qgetenv(name).toStdString();
    return path.is_absolute() ? path : fs::path();
}

fs::path homeFromPasswd() {
    passwd entry{};
    passwd* found = nullptr;
    constexpr std::size_t bufferSize = 16384;
    std::array<char, bufferSize> buffer{};
    getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found);
    const fs::path home = found != nullptr ? found->pw_dir : "";
    return home.is_absolute() ? home : fs::path();
}

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

PreferencesFile::PreferencesFile(fs::path path) : path_(std::move(path)) {
    if (path_.empty()) {
        qCWarning(storageLog, "no home folder: settings are kept in memory only");
        return;
    }
    const DurableFile file(path_);
    removeOrphansOf(file);
    const auto reading = file.read(PreferencesDocument::maximumSize);
    const auto stored = documentOf(reading);
    const bool absent = reading.state == DurableFile::State::absent;
    known_ = stored.value_or(PreferencesDocument());
    loaded_ = stored || absent;
    qCDebug(storageLog, "%s: %s", file.path().c_str(),
            stored   ? "loaded"
            : absent ? "absent"
                     : "unreadable, starting with defaults");
}

PreferencesFile::~PreferencesFile() {
    // Retry: the disk may have free space again.
    if (!path_.empty() && unsaved_ != PreferencesDocument()) {
        static_cast<void>(writeUnsaved());
    }
}

fs::path PreferencesFile::defaultPath() {
    fs::path folder = environmentPath("XDG_CONFIG_HOME");
    if (folder.empty()) {
        fs::path home = environmentPath("HOME");
        if (home.empty()) {
            home = homeFromPasswd();
        }
        if (home.empty()) {
            return {};
        }
        folder = home / ".config";
    }
    return folder / "fernwick" / "preferences.cbor";
}

bool PreferencesFile::store(const QString& key, const QCborValue& value) {
    known_.insert(key, value);
    unsaved_.insert(key, value);
    if (path_.empty() || !writeUnsaved()) {
        qCWarning(storageLog, "could not store \"%s\"", qUtf8Printable(key));
        return false;
    }
    unsaved_ = {};
    return true;
}

bool PreferencesFile::writeUnsaved() {
    constexpr std::chrono::milliseconds lockTimeout{200};
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
    known_ = stored.value_or(known_);
    known_.insert(unsaved_);
    if (stored == known_) {
        return file.sync();
    }
    const QByteArray bytes = known_.encoded();
    if (PreferencesDocument::read(bytes) != known_) {
        qCWarning(storageLog, "the settings exceed the limits of the file format");
        return false;
    }
    // Also keep a file that was unreadable at the start and is readable now: the player has not
    // seen the values that are about to be replaced.
    const bool worthKeeping = reading.state != DurableFile::State::absent && (!stored || !loaded_);
    if (worthKeeping && !file.setAside()) {
        return false;
    }
    loaded_ = true;
    return file.replace(bytes);
}

}  // namespace Storage
