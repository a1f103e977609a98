#include "Fernwick/Storage/CrashedDisk.hpp"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <set>

using SystemCalls::Effect;
using Kind = Effect::Kind;

namespace {

/// A step that a power failure applies as a whole or not at all.
struct Step {
    Effect effect;
    std::size_t offset = 0;  ///< of a write
    bool durable = false;
};

std::string folderOf(const std::string& path) {
    return std::filesystem::path(path).parent_path();
}

/// The file or folder whose fsync() makes the effect durable.
std::string keeperOf(const Effect& effect) {
    return effect.kind == Kind::write ? effect.path : folderOf(effect.path);
}

std::vector<Step> stepsOf(const std::vector<Effect>& effects, std::size_t count) {
    std::vector<Step> steps;
    std::map<std::string, std::size_t> sizes;
    for (std::size_t i = 0; i < count; ++i) {
        const Effect& effect = effects[i];
        const bool durable = std::any_of(
            effects.begin() + static_cast<std::ptrdiff_t>(i),
            effects.begin() + static_cast<std::ptrdiff_t>(count), [&](const Effect& later) {
                return later.kind == Kind::sync && later.path == keeperOf(effect);
            });
        if (effect.kind == Kind::write) {
            // In two halves, either of which may be missing.
            const std::size_t half = effect.bytes.size() / 2;
            std::size_t& size = sizes[effect.path];
            steps.push_back(
                {{Kind::write, effect.path, {}, effect.bytes.substr(0, half)}, size, durable});
            steps.push_back(
                {{Kind::write, effect.path, {}, effect.bytes.substr(half)}, size + half, durable});
            size += effect.bytes.size();
        } else if (effect.kind != Kind::sync) {
            steps.push_back({effect, 0, durable});
        }
    }
    return steps;
}

/// Names that lead to contents, which are known by the path under which the file was created.
struct SimulatedDisk {
    std::map<std::string, std::string> names;
    std::map<std::string, std::string> contents;

    void apply(const Step& step) {
        const auto& [kind, path, target, bytes] = step.effect;
        switch (kind) {
            case Kind::createFile:
                names[path] = path;
                contents.try_emplace(path);
                break;
            case Kind::createFolder:
                names[path] = CrashedDisk::folder;
                break;
            case Kind::write: {
                std::string& content = contents[path];
                content.resize(std::max(content.size(), step.offset + bytes.size()));
                content.replace(step.offset, bytes.size(), bytes);
                break;
            }
            case Kind::rename:
                // The folder entry may reach the disk without the content.
                contents.try_emplace(path);
                names[target] = names.contains(path) ? names[path] : path;
                names.erase(path);
                break;
            case Kind::link:
                names[target] = names[path];
                break;
            case Kind::unlink:
                names.erase(path);
                break;
            case Kind::sync:
                break;
        }
    }

    /// Leaves out what is in one of `newFolders` that has not reached the disk.
    [[nodiscard]] CrashedDisk::Files files(const std::set<std::string>& newFolders) const {
        CrashedDisk::Files found;
        for (const auto& [path, file] : names) {
            if (!newFolders.contains(folderOf(path)) || found.contains(folderOf(path))) {
                found[path] = file == CrashedDisk::folder ? file : contents.at(file);
            }
        }
        return found;
    }
};

}  // namespace

void CrashedDisk::forEachState(const Files& before, const std::vector<Effect>& effects,
                               std::size_t count, const std::function<void(const Files&)>& check) {
    SimulatedDisk old;
    for (const auto& [path, content] : before) {
        old.names[path] = content == folder ? folder : path;
        old.contents[path] = content;
    }
    std::set<std::string> newFolders;
    for (const Effect& effect : effects) {
        if (effect.kind == Kind::createFolder) {
            newFolders.insert(effect.path);
        }
    }
    const std::vector<Step> steps = stepsOf(effects, count);
    const auto uncertain = std::ranges::count(steps, false, &Step::durable);
    for (std::uint64_t choice = 0; choice < std::uint64_t{1} << uncertain; ++choice) {
        SimulatedDisk disk = old;
        std::uint64_t rest = choice;
        for (const Step& step : steps) {
            const bool reached = step.durable || (rest & 1) != 0;
            rest = step.durable ? rest : rest >> 1;
            if (reached) {
                disk.apply(step);
            }
        }
        check(disk.files(newFolders));
    }
}
