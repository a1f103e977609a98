#pragma once

#include <chrono>
#include <filesystem>
#include <memory>

#include "Session/Preferences.hpp"
#include "Storage/PreferencesDocument.hpp"

namespace Storage {

class PreferencesWriter;

/// Preferences in one small file, which a thread replaces atomically and durably after each
/// `store`. Values that could not be written are tried again every few seconds, after the next
/// `store` and on destruction, which waits for the disk for at most five seconds.
class PreferencesFile final : public Preferences {
public:
    /// Reads the file at `path`, which need not exist. With an empty path the settings are
    /// kept in memory only.
    explicit PreferencesFile(const std::filesystem::path& path,
                             std::chrono::milliseconds retryInterval = std::chrono::seconds(3));
    /// Starts with the settings in `document`, and keeps them in memory only.
    explicit PreferencesFile(PreferencesDocument document);
    PreferencesFile(const PreferencesFile&) = delete;
    PreferencesFile& operator=(const PreferencesFile&) = delete;
    ~PreferencesFile() override;

    /// "fernwick/preferences.cbor" in $XDG_CONFIG_HOME or, unless that is an absolute path, in
    /// ~/.config. Empty if the user has no home folder.
    [[nodiscard]] static std::filesystem::path defaultPath();

    [[nodiscard]] bool contains(const QString& key) const override { return known_.contains(key); }
    void store(const QString& key, const QCborValue& value) override;
    void keepCopy() override { keepCopy_ = true; }

    /// Waits until every value stored so far is durable, and returns true. Returns false once an
    /// attempt to write them has failed, after `timeout`, and without a file.
    [[nodiscard]] bool flush(std::chrono::milliseconds timeout) const;

protected:
    [[nodiscard]] QCborValue value(const QString& key) const override { return known_.value(key); }

private:
    PreferencesDocument known_;  ///< as read at the start and changed by this process
    bool keepCopy_ = false;      ///< of the file that the next store replaces
    std::unique_ptr<PreferencesWriter> writer_;
};

}  // namespace Storage
