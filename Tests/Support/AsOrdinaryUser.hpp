#pragma once

#include <unistd.h>

#include <filesystem>
#include <stdexcept>

/// Until it goes, the test runs without the superuser's right to pass every permission; the
/// folder given, and what is in it, belong to that ordinary user. Does nothing for others.
class AsOrdinaryUser {
public:
    explicit AsOrdinaryUser(const std::filesystem::path& folder) {
        if (::geteuid() != 0) {
            return;
        }
        give(folder);
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
            give(entry.path());
        }
        if (::seteuid(nobody) != 0) {
            throw std::runtime_error("cannot become an ordinary user");
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

    static void give(const std::filesystem::path& path) {
        if (::lchown(path.c_str(), nobody, static_cast<gid_t>(-1)) != 0) {
            throw std::runtime_error("cannot give a file away");
        }
    }

    bool changed_ = false;
};
