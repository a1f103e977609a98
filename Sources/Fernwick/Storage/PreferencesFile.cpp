#include "Storage/PreferencesFile.hpp"

#include <pwd.h>
#include <unistd.h>

#include <QtGlobal>
#include <array>
#include <utility>

#include "Storage/DurableFile.hpp"
#include "Storage/FileLock.hpp"

namespace fs = std::filesystem;

namespace {

fs::path environmentPath(const char* name) {
    fs::path path = qgetenv(name).toStdString();
    return path.is_absolute() ? path : fs::path();
}

fs::path homeOfUser() {
    passwd entry{};
    passwd* found = nullptr;
    constexpr std::size_t ampleForOneUser = 16384;
    std::array<char, ampleForOneUser> texts{};
    getpwuid_r(getuid(), &entry, texts.data(), texts.size(), &found);
    const fs::path home = found != nullptr ? found->pw_dir : "";
    return home.is_absolute() ? home : fs::path();
}

/// Beside the file and not the file itself, which is another one after each store.
std::optional<FileLock> lockOf(const DurableFile& file, std::chrono::milliseconds patience) {
    fs::path path = file.path();
    path += ".lock";
    return FileLock::acquire(path, patience);
}

std::optional<PreferencesDocument> documentOf(const DurableFile::Reading& reading) {
    return reading.state == DurableFile::State::whole ? PreferencesDocument::read(reading.bytes)
                                                      : std::nullopt;
}

void removeOrphansOf(const DurableFile& file) {
    if (!file.hasOrphans()) {
        return;
    }
    // Another process may be writing just now; the next start can do this as well.
    constexpr std::chrono::milliseconds noPatience{0};
    const auto lock = lockOf(file, noPatience);
    if (lock && lock->excludesOthers()) {
        file.removeOrphans();
    }
}

}  // namespace

PreferencesFile::PreferencesFile(fs::path path) : path_(std::move(path)) {
    if (path_.empty()) {
        return;
    }
    const DurableFile file(path_);
    removeOrphansOf(file);
    const auto reading = file.read(PreferencesDocument::maximumSize);
    const auto stored = documentOf(reading);
    known_ = stored.value_or(PreferencesDocument());
    seen_ = stored || reading.state == DurableFile::State::absent;
}

PreferencesFile::~PreferencesFile() {
    // The disk may have room again by now.
    if (!path_.empty() && unsaved_ != PreferencesDocument()) {
        static_cast<void>(writeUnsaved());
    }
}

fs::path PreferencesFile::defaultPath() {
    fs::path folder = environmentPath("XDG_CONFIG_HOME");
    if (folder.empty()) {
        fs::path home = environmentPath("HOME");
        if (home.empty()) {
            home = homeOfUser();
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
        return false;
    }
    unsaved_ = {};
    return true;
}

QCborValue PreferencesFile::value(const QString& key) const {
    return known_.value(key);
}

bool PreferencesFile::writeUnsaved() {
    constexpr std::chrono::milliseconds lockPatience{200};
    const DurableFile file(path_);
    if (!file.createFolder()) {
        return false;
    }
    const auto lock = lockOf(file, lockPatience);
    if (!lock) {
        return false;
    }
    const auto reading = file.read(PreferencesDocument::maximumSize);
    if (reading.state == DurableFile::State::failed) {
        return false;
    }
    // Read anew, so that what another process stored meanwhile survives. Where there is nothing
    // to read any more, what this process remembers is the best copy left.
    const auto stored = documentOf(reading);
    known_ = stored.value_or(known_);
    known_.insert(unsaved_);
    if (stored == known_) {
        return file.sync();
    }
    const QByteArray bytes = known_.encoded();
    if (PreferencesDocument::read(bytes) != known_) {
        return false;
    }
    // A value the player never saw may be about to be replaced: even if it can be read by now,
    // it is kept like one that cannot.
    const bool worthKeeping = reading.state != DurableFile::State::absent && (!stored || !seen_);
    if (worthKeeping && !file.setAside()) {
        return false;
    }
    seen_ = true;
    return file.replace(bytes);
}
