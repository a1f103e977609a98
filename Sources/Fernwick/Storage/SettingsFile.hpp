#pragma once

#include <filesystem>
#include <optional>

#include "Storage/PreferencesDocument.hpp"

namespace Storage {

/// Settings that are to be written.
struct SettingsChanges {
    PreferencesDocument values;
    /// Keep a copy of the file that they replace, because something in it could not be read.
    bool keepCopy = false;

    /// Adds `newer`, whose values replace those with the same key.
    void insert(const SettingsChanges& newer) {
        values.insert(newer.values);
        keepCopy = keepCopy || newer.keepCopy;
    }
};

/// The settings file, which several processes may share: each write re-reads it under a lock and
/// changes some of its keys. Writing blocks until the disk has the data, and up to a second longer
/// while another process holds the lock. Logs to "fernwick.storage".
class SettingsFile {
public:
    /// Reads the file, which need not exist.
    explicit SettingsFile(std::filesystem::path path);

    /// What the file at `path` holds; an empty document if there is none, nothing if it cannot be
    /// read. Changes no file and takes no lock.
    [[nodiscard]] static std::optional<PreferencesDocument> peek(const std::filesystem::path& path);

    /// All settings, as last read or written.
    [[nodiscard]] const PreferencesDocument& document() const { return document_; }

    /// Returns true once `changes` are durable. When false, the file has its old content, or the
    /// new one but perhaps not durably.
    [[nodiscard]] bool write(const SettingsChanges& changes);

private:
    std::filesystem::path path_;
    PreferencesDocument document_;
    bool loaded_;  ///< false while the file is one that the constructor could not read
};

}  // namespace Storage
