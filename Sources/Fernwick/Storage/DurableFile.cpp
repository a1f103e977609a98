#include "Storage/DurableFile.hpp"

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/stat.h>

#include <array>
#include <csignal>
#include <cstdio>
#include <string>
#include <string_view>
#include <system_error>

#include "Posix/FileDescriptor.hpp"
#include "Storage/Log.hpp"

namespace fs = std::filesystem;
using Posix::FileDescriptor;
using Posix::retryOnInterrupt;

namespace Storage {

Q_LOGGING_CATEGORY(storageLog, "fernwick.storage", QtFatalMsg)

namespace {

constexpr std::string_view temporaryInfix = ".new-";
constexpr std::string_view temporaryPlaceholder = "XXXXXX";
constexpr std::string_view asideInfix = ".unreadable-";

/// The file that `link` leads to, which need not exist. `link` itself if that is not a regular
/// file, because replacing a device, a socket or a folder would do harm, or after 40 links, which
/// is the kernel's limit.
fs::path followLinks(const fs::path& link) {
    constexpr int maximumLinks = 40;
    fs::path path = link;
    std::error_code error;
    for (int count = 0; count < maximumLinks && fs::is_symlink(path, error); ++count) {
        const fs::path target = fs::read_symlink(path, error);
        if (error) {
            break;
        }
        path = path.parent_path() / target;
    }
    const fs::file_type type = fs::symlink_status(path, error).type();
    return type == fs::file_type::regular || type == fs::file_type::not_found ? path : link;
}

DurableFile::State stateAfterOpenError(int error) {
    // ENOTDIR: the path of the folder is a file.
    if (error == ENOENT || error == ENOTDIR) {
        return DurableFile::State::absent;
    }
    return Posix::isPermanentOpenError(error) ? DurableFile::State::unusable
                                              : DurableFile::State::failed;
}

bool writeAll(int file, const QByteArray& bytes) {
    qsizetype written = 0;
    while (written < bytes.size()) {
        const auto rest = static_cast<std::size_t>(bytes.size() - written);
        const ssize_t count =
            retryOnInterrupt([&] { return ::write(file, bytes.constData() + written, rest); });
        if (!logFailure(count > 0, "write")) {
            return false;
        }
        written += count;
    }
    return true;
}

/// The last check before the file becomes the only copy.
bool hasSize(int file, qsizetype size) {
    struct stat status = {};
    const bool equal = ::fstat(file, &status) == 0 && status.st_size == size;
    if (!equal) {
        qCWarning(storageLog, "the temporary file does not have the size written");
    }
    return equal;
}

bool syncFile(int file) {
    return retryOnInterrupt([&] { return ::fsync(file); }) == 0;
}

bool syncFolder(const fs::path& folder) {
    FileDescriptor opened = Posix::openFile(folder.c_str(), O_RDONLY | O_DIRECTORY);
    // EINVAL: the file system does not support fsync() on folders.
    const bool synced = opened.valid() && (syncFile(opened.number()) || errno == EINVAL);
    return logFailure(synced && opened.close(), "fsync of the folder");
}

bool createFolders(const fs::path& folder) {
    std::error_code error;
    if (folder.empty() || fs::is_directory(folder, error)) {
        return true;
    }
    if (error == std::errc::filename_too_long) {
        // Recursing through the thousands of parents of such a path would take gigabytes.
        errno = ENAMETOOLONG;
        return logFailure(false, "creating the folder");
    }
    const fs::path parent = folder.parent_path();
    if (parent == folder || !createFolders(parent)) {
        return false;
    }
    constexpr mode_t onlyThisUser = 0700;
    if (::mkdir(folder.c_str(), onlyThisUser) == 0) {
        return syncFolder(parent.empty() ? "." : parent);
    }
    return logFailure(errno == EEXIST && fs::is_directory(folder, error), "creating the folder");
}

bool sameFile(const fs::path& one, const fs::path& other) {
    struct stat first = {};
    struct stat second = {};
    return ::lstat(one.c_str(), &first) == 0 && ::lstat(other.c_str(), &second) == 0 &&
           first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

}  // namespace

DurableFile::DurableFile(const fs::path& path) : path_(followLinks(path)) {}

DurableFile::Reading DurableFile::read(qsizetype maximumSize) const {
    const FileDescriptor file = Posix::openFile(path_.c_str(), O_RDONLY | O_NOFOLLOW);
    if (!file.valid()) {
        const State state = stateAfterOpenError(errno);
        logFailure(state == State::absent, "open");
        return {state, {}};
    }
    struct stat status = {};
    if (!logFailure(::fstat(file.number(), &status) == 0, "fstat")) {
        return {State::failed, {}};
    }
    if (!S_ISREG(status.st_mode) || status.st_size > maximumSize) {
        return {State::unusable, {}};
    }
    QByteArray bytes;
    std::array<char, 65536> piece{};
    while (true) {
        const ssize_t count =
            retryOnInterrupt([&] { return ::read(file.number(), piece.data(), piece.size()); });
        if (!logFailure(count >= 0, "read")) {
            return {State::failed, {}};
        }
        if (count == 0) {
            return {State::complete, bytes};
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
    // Past the file size limit (ulimit -f), write() is to fail instead of killing the process.
    std::signal(SIGXFSZ, SIG_IGN);
    std::string temporary;
    FileDescriptor file(retryOnInterrupt([&] {
        temporary = path_.native();
        temporary.append(temporaryInfix).append(temporaryPlaceholder);
        return ::mkostemp(temporary.data(), O_CLOEXEC);
    }));
    if (!logFailure(file.valid(), "creating the temporary file")) {
        return false;
    }
    bool complete = writeAll(file.number(), bytes) && hasSize(file.number(), bytes.size()) &&
                    logFailure(syncFile(file.number()), "fsync");
    complete = logFailure(file.close(), "close") && complete;
    const auto rename = [&] { return ::rename(temporary.c_str(), path_.c_str()); };
    if (!complete || !logFailure(retryOnInterrupt(rename) == 0, "rename")) {
        ::unlink(temporary.c_str());
        return false;
    }
    return syncFolder(folder());
}

bool DurableFile::sync() const {
    FileDescriptor file = Posix::openFile(path_.c_str(), O_RDONLY);
    return logFailure(file.valid() && syncFile(file.number()) && file.close(), "fsync") &&
           syncFolder(folder());
}

bool DurableFile::setAside() const {
    constexpr int maximumAside = 1000;
    std::error_code error;
    for (int number = 1; number <= maximumAside; ++number) {
        std::string aside = path_.native();
        aside.append(asideInfix).append(std::to_string(number));
        if (fs::exists(fs::symlink_status(aside, error))) {
            if (sameFile(path_, aside)) {
                return true;
            }
            continue;
        }
        // A hard link keeps the file in place until it is replaced. Folders and some file systems
        // do not allow hard links: there, rename it. Neither overwrites anything.
        const bool named =
            ::link(path_.c_str(), aside.c_str()) == 0 ||
            ::renameat2(AT_FDCWD, path_.c_str(), AT_FDCWD, aside.c_str(), RENAME_NOREPLACE) == 0;
        if (!logFailure(named, "setting the file aside")) {
            return false;
        }
        qCDebug(storageLog, "set the unreadable file aside as %s", aside.c_str());
        return syncFolder(folder());
    }
    return false;
}

std::vector<fs::path> DurableFile::orphans() const {
    std::string prefix = path_.filename().native();
    prefix.append(temporaryInfix);
    std::vector<fs::path> found;
    std::error_code error;
    for (fs::directory_iterator entry(folder(), error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string name = entry->path().filename().native();
        std::error_code typeError;
        if (name.starts_with(prefix) &&
            name.size() == prefix.size() + temporaryPlaceholder.size() &&
            fs::is_regular_file(entry->symlink_status(typeError))) {
            found.push_back(entry->path());
        }
    }
    return found;
}

fs::path DurableFile::folder() const {
    return path_.has_parent_path() ? path_.parent_path() : ".";
}

}  // namespace Storage
