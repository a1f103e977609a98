#pragma once

#include <unistd.h>

#include <filesystem>
#include <stdexcept>

/// Root ignores file permissions, so if the test runs as root, this object changes the effective
/// user to "nobody" until it is destroyed, and makes that user the owner of `folder`.
class AsOrdinaryUser {
public:
    explicit AsOrdinaryUser(const std::filesystem::path& folder) {
        if (::geteuid() != 0) {
            return;
        }
        chownToNobody(folder);
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
            chownToNobody(entry.path());
        }
        if (::seteuid(nobody) != 0) {
            throw std::runtime_error("seteuid failed");
        }
        changed_ = true;
    }
    AsOrdinaryUser(const AsOrdinaryUser&) = delete;
    AsOrdinaryUser& operator=(const AsOrdinaryUser&) = delete;
    ~AsOrdinaryUser() {
        if (changed_ && ::seteuid(0) != 0) {
            std::terminate();
        }
    }

private:
    static constexpr uid_t nobody = 65534;

    static void chownToNobody(const std::filesystem::path& path) {
        if (::lchown(path.c_str(), nobody, static_cast<gid_t>(-1)) != 0) {
            throw std::runtime_error("lchown failed");
        }
    }

    bool changed_ = false;
};
