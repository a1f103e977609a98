#pragma once

#include <QByteArray>
#include <filesystem>
#include <vector>

namespace Storage {

/// A small file that is replaced atomically: a reader, also after a crash or power failure, finds
/// either the old content or the new. A symbolic link to a regular file is followed, so that the
/// link survives and its target is replaced. Failing steps are logged with their errno.
class DurableFile {
public:
    enum class State {
        complete,
        absent,
        unusable,  ///< too large, no permission, or not a regular file: retrying is pointless
        failed,    ///< a read error that may be temporary
    };
    struct Reading {
        State state;
        QByteArray bytes;  ///< empty unless `complete`
    };

    explicit DurableFile(const std::filesystem::path& path);

    /// The path given, with symbolic links to a regular file resolved.
    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

    /// Reads up to `maximumSize` bytes. Never blocks on a named pipe or a device.
    [[nodiscard]] Reading read(qsizetype maximumSize) const;

    /// Creates the folder and its parents with mode 0700. Returns true if the folder exists
    /// afterwards.
    [[nodiscard]] bool createFolder() const;

    /// Replaces the content durably: temporary file, fsync, rename, fsync of the folder. When
    /// false, the old content is intact, unless only the last step failed.
    [[nodiscard]] bool replace(const QByteArray& bytes) const;

    /// Flushes the existing file and its folder, in case the process that wrote it did not get so
    /// far.
    [[nodiscard]] bool sync() const;

    /// Links the content to "<name>.unreadable-1" or the next free number, so that replacing the
    /// file does not lose it. Never overwrites anything.
    [[nodiscard]] bool setAside() const;

    /// Temporary files left by a process that was killed in `replace`. Remove them only while no
    /// other process can be in `replace`.
    [[nodiscard]] std::vector<std::filesystem::path> orphans() const;

private:
    [[nodiscard]] std::filesystem::path folder() const;

    std::filesystem::path path_;
};

}  // namespace Storage
