#pragma once

#include <QByteArray>
#include <filesystem>

/// A small file that is only ever replaced as a whole: whoever reads it, also after a crash or a
/// power failure, finds either the old content or the new. A symbolic link in its place is
/// followed, so that the link survives and its target is replaced.
class DurableFile {
public:
    enum class State {
        whole,
        absent,
        unusable,  ///< too large, not allowed, or not a regular file: no later try will read it
        failed,    ///< the system could not read it this time
    };
    struct Reading {
        State state;
        QByteArray bytes;  ///< empty unless `whole`
    };

    explicit DurableFile(const std::filesystem::path& path);

    /// Where the content lies: the path given, with symbolic links in the file's place resolved.
    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

    /// Reads up to `maximumSize` bytes; never waits for a pipe or a device in the file's place.
    [[nodiscard]] Reading read(qsizetype maximumSize) const;

    /// Makes the folder and its parents, for this user only. True when it is there afterwards.
    [[nodiscard]] bool createFolder() const;

    /// Puts `bytes` in the file's place. True when they are there to stay. When false the old
    /// content still stands, except where only the last step failed: making the new name durable.
    [[nodiscard]] bool replace(const QByteArray& bytes) const;

    /// Makes what already stands there durable; another process may not have come to that.
    [[nodiscard]] bool sync() const;

    /// Gives the content a second name beside the file ("….unreadable-1" and up, none of them
    /// ever overwritten), so that replacing the file does not lose it.
    [[nodiscard]] bool setAside() const;

    /// What a process that was killed while in `replace` leaves behind. Removing is only safe
    /// while no other process can be in `replace`.
    [[nodiscard]] bool hasOrphans() const;
    void removeOrphans() const;

private:
    [[nodiscard]] std::filesystem::path folder() const;

    std::filesystem::path path_;
};
