#include "Storage/DurableFile.hpp"

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/stat.h>

#include <array>
#include <cstdio>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "Posix/FileDescriptor.hpp"
#include "Storage/FileSizeSignal.hpp"

namespace fs = std::filesystem;

namespace {

constexpr std::string_view temporaryMark = ".new-";
constexpr std::string_view temporaryPlaceholder = "XXXXXX";
constexpr std::string_view asideMark = ".unreadable-";

/// Ends at a name that is no symbolic link or, like the kernel, after 40 of them.
fs::path followLinks(fs::path path) {
    constexpr int maximumLinks = 40;
    std::error_code error;
    for (int link = 0; link < maximumLinks && fs::is_symlink(path, error); ++link) {
        const fs::path target = fs::read_symlink(path, error);
        if (error) {
            break;
        }
        path = path.parent_path() / target;
    }
    return path;
}

DurableFile::State stateAfterRefusal(int error) {
    // ENOTDIR: a file where the folder should be.
    if (error == ENOENT || error == ENOTDIR) {
        return DurableFile::State::absent;
    }
    return isLastingRefusal(error) ? DurableFile::State::unusable : DurableFile::State::failed;
}

bool writeAll(int file, const QByteArray& bytes) {
    qsizetype written = 0;
    while (written < bytes.size()) {
        const auto rest = static_cast<std::size_t>(bytes.size() - written);
        const ssize_t count =
            uninterrupted([&] { return ::write(file, bytes.constData() + written, rest); });
        if (count <= 0) {
            return false;
        }
        written += count;
    }
    return true;
}

/// The last look before the file becomes the only copy.
bool hasSize(int file, qsizetype size) {
    struct stat status {};
    return ::fstat(file, &status) == 0 && status.st_size == size;
}

bool syncFile(int file) {
    return uninterrupted([&] { return ::fsync(file); }) == 0;
}

bool syncFolder(const fs::path& folder) {
    constexpr int flags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;
    FileDescriptor opened(uninterrupted([&] { return ::open(folder.c_str(), flags); }));
    // EINVAL: a file system on which folders cannot be synced, and need not be.
    return opened.valid() && (syncFile(opened.number()) || errno == EINVAL) && opened.close();
}

bool createFolders(const fs::path& folder) {
    std::error_code error;
    if (folder.empty() || fs::is_directory(folder, error)) {
        return true;
    }
    if (error == std::errc::filename_too_long) {
        // Nor could it be made; and its thousands of parents would cost gigabytes.
        return false;
    }
    const fs::path parent = folder.parent_path();
    if (parent == folder || !createFolders(parent)) {
        return false;
    }
    constexpr mode_t onlyThisUser = 0700;
    if (::mkdir(folder.c_str(), onlyThisUser) == 0) {
        return syncFolder(parent.empty() ? "." : parent);
    }
    return errno == EEXIST && fs::is_directory(folder, error);
}

bool sameFile(const fs::path& one, const fs::path& other) {
    struct stat first {};
    struct stat second {};
    return ::lstat(one.c_str(), &first) == 0 && ::lstat(other.c_str(), &second) == 0 &&
           first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

/// The temporaries of `file` that lie in `folder`.
std::vector<fs::path> orphansOf(const fs::path& file, const fs::path& folder) {
    std::string beginning = file.filename().native();
    beginning.append(temporaryMark);
    std::vector<fs::path> orphans;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string name = entry->path().filename().native();
        std::error_code typeError;
        if (name.starts_with(beginning) &&
            name.size() == beginning.size() + temporaryPlaceholder.size() &&
            fs::is_regular_file(entry->symlink_status(typeError))) {
            orphans.push_back(entry->path());
        }
    }
    return orphans;
}

}  // namespace

DurableFile::DurableFile(const fs::path& path) : path_(followLinks(path)) {}

DurableFile::Reading DurableFile::read(qsizetype maximumSize) const {
    // O_NONBLOCK: a pipe in the file's place must not hold us up.
    constexpr int flags = O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    const FileDescriptor file(uninterrupted([&] { return ::open(path_.c_str(), flags); }));
    if (!file.valid()) {
        return {stateAfterRefusal(errno), {}};
    }
    struct stat status {};
    if (::fstat(file.number(), &status) != 0) {
        return {State::failed, {}};
    }
    if (!S_ISREG(status.st_mode) || status.st_size > maximumSize) {
        return {State::unusable, {}};
    }
    QByteArray bytes;
    std::array<char, 65536> piece{};
    while (true) {
        const ssize_t count =
            uninterrupted([&] { return ::read(file.number(), piece.data(), piece.size()); });
        if (count < 0) {
            return {State::failed, {}};
        }
        if (count == 0) {
            return {State::whole, bytes};
        }
        bytes.append(piece.data(), count);
        if (bytes.size() > maximumSize) {
            return {State::unusable, {}};
        }
    }
}

bool DurableFile::createFolder() const {
    return createFolders(folder());
}

bool DurableFile::replace(const QByteArray& bytes) const {
    const FileSizeSignal held;
    std::string temporary;
    FileDescriptor file(uninterrupted([&] {
        temporary = path_.native();
        temporary.append(temporaryMark).append(temporaryPlaceholder);
        return ::mkostemp(temporary.data(), O_CLOEXEC);
    }));
    if (!file.valid()) {
        return false;
    }
    bool complete = writeAll(file.number(), bytes) && hasSize(file.number(), bytes.size()) &&
                    syncFile(file.number());
    complete = file.close() && complete;
    const auto rename = [&] { return ::rename(temporary.c_str(), path_.c_str()); };
    if (!complete || uninterrupted(rename) != 0) {
        ::unlink(temporary.c_str());
        return false;
    }
    return syncFolder(folder());
}

bool DurableFile::sync() const {
    constexpr int flags = O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    FileDescriptor file(uninterrupted([&] { return ::open(path_.c_str(), flags); }));
    return file.valid() && syncFile(file.number()) && file.close() && syncFolder(folder());
}

bool DurableFile::setAside() const {
    constexpr int maximumAside = 1000;
    std::error_code error;
    for (int number = 1; number <= maximumAside; ++number) {
        std::string aside = path_.native();
        aside.append(asideMark).append(std::to_string(number));
        if (fs::exists(fs::symlink_status(aside, error))) {
            if (sameFile(path_, aside)) {
                return true;
            }
            continue;
        }
        // A second name leaves the file in its place until it is replaced. Where the file system
        // knows no second names, the file takes the new name instead. Neither ever overwrites.
        const bool named =
            ::link(path_.c_str(), aside.c_str()) == 0 ||
            ::renameat2(AT_FDCWD, path_.c_str(), AT_FDCWD, aside.c_str(), RENAME_NOREPLACE) == 0;
        return named && syncFolder(folder());
    }
    return false;
}

bool DurableFile::hasOrphans() const {
    return !orphansOf(path_, folder()).empty();
}

void DurableFile::removeOrphans() const {
    for (const fs::path& orphan : orphansOf(path_, folder())) {
        ::unlink(orphan.c_str());
    }
}

fs::path DurableFile::folder() const {
    return path_.has_parent_path() ? path_.parent_path() : ".";
}
