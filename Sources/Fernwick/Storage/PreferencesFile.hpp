#pragma once

#include <filesystem>

#include "Session/Preferences.hpp"
#include "Storage/PreferencesDocument.hpp"

/// Preferences in one small file, replaced as a whole and durably at every store, so that neither
/// a crash, a full disk nor a second running program costs anything that was stored before.
/// What is stored while the file cannot be written is kept and written with the next store, or at
/// the end of the program.
/// Prints nothing and waits at most a fifth of a second for another process.
class PreferencesFile final : public Preferences {
public:
    /// Reads what is stored at `path`, which need not exist. An empty path keeps the settings in
    /// memory only.
    explicit PreferencesFile(std::filesystem::path path);
    PreferencesFile(const PreferencesFile&) = delete;
    PreferencesFile& operator=(const PreferencesFile&) = delete;
    ~PreferencesFile() override;

    /// "fernwick/preferences.cbor" in $XDG_CONFIG_HOME or, where that is no absolute path, in
    /// ~/.config; empty for a user without a home.
    [[nodiscard]] static std::filesystem::path defaultPath();

    bool store(const QString& key, const QCborValue& value) override;

protected:
    [[nodiscard]] QCborValue value(const QString& key) const override;

private:
    [[nodiscard]] bool writeUnsaved();

    std::filesystem::path path_;
    PreferencesDocument known_;    ///< as last read or stored, newest values included
    PreferencesDocument unsaved_;  ///< what the file may not hold yet
    bool seen_ = true;             ///< false while the file holds what could not be read at start
};
