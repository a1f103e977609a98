#pragma once

#include <filesystem>

#include "Session/Preferences.hpp"
#include "Storage/PreferencesDocument.hpp"

namespace Storage {

/// Preferences in one small file, replaced atomically and durably by every `store`. Several
/// processes may share it: `store` re-reads the file under a lock and changes one key. A value that
/// could not be written is kept in memory and written by the next `store`, or on destruction. Waits
/// at most 200 ms for another process. Logs to "fernwick.storage".
class PreferencesFile final : public Preferences {
public:
    /// Reads the file at `path`, which need not exist. With an empty path the settings are
    /// kept in memory only.
    explicit PreferencesFile(std::filesystem::path path);
    PreferencesFile(const PreferencesFile&) = delete;
    PreferencesFile& operator=(const PreferencesFile&) = delete;
    ~PreferencesFile() override;

    /// "fernwick/preferences.cbor" in $XDG_CONFIG_HOME or, unless that is an absolute path, in
    /// ~/.config. Empty if the user has no home folder.
    [[nodiscard]] static std::filesystem::path defaultPath();

    bool store(const QString& key, const QCborValue& value) override;

protected:
    [[nodiscard]] QCborValue value(const QString& key) const override { return known_.value(key); }

private:
    [[nodiscard]] bool writeUnsaved();

    std::filesystem::path path_;
    PreferencesDocument known_;    ///< as last read or stored, including unsaved values
    PreferencesDocument unsaved_;  ///< values that may not be in the file yet
    bool loaded_ = true;  ///< false while the file is one that the constructor could not read
};

}  // namespace Storage
