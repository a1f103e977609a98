#include "Storage/PreferencesFile.hpp"

#include <pwd.h>
#include <unistd.h>

#include <QtGlobal>
#include <array>
#include <utility>

#include "Storage/Log.hpp"
#include "Storage/PreferencesWriter.hpp"
#include "Storage/SettingsFile.hpp"

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

}  // namespace

PreferencesFile::PreferencesFile(const fs::path& path, std::chrono::milliseconds retryInterval) {
    if (path.empty()) {
        qCWarning(storageLog, "no home folder: settings are kept in memory only");
        return;
    }
    SettingsFile file(path);
    known_ = file.document();
    writer_ = std::make_unique<PreferencesWriter>(std::move(file), retryInterval);
}

PreferencesFile::PreferencesFile(PreferencesDocument document) : known_(std::move(document)) {}

PreferencesFile::~PreferencesFile() = default;

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

void PreferencesFile::store(const QString& key, const QCborValue& value) {
    SettingsChanges changes;
    changes.values.insert(key, value);
    changes.keepCopy = std::exchange(keepCopy_, false);
    known_.insert(changes.values);
    if (writer_) {
        writer_->write(changes);
    }
}

bool PreferencesFile::flush(std::chrono::milliseconds timeout) const {
    return writer_ && writer_->flush(timeout);
}

}  // namespace Storage
