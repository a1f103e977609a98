#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "Fernwick/Storage/SystemCalls.hpp"

/// What a power failure may leave of a sequence of file operations. POSIX promises only that what
/// was written to a file is on the disk after fsync() of the file, and a change of a folder after
/// fsync() of the folder. Anything else may have reached the disk or not, in any order; a write may
/// have reached it in part.
namespace CrashedDisk {

/// The content of each file by its path, or `folder`.
using Files = std::map<std::string, std::string>;
inline const std::string folder = "(folder)";

/// Calls `check` for every state of the disk that a power failure after the first `count` of
/// `effects` may leave, starting from `before`. Files whose folder is lost are lost.
void forEachState(const Files& before, const std::vector<SystemCalls::Effect>& effects,
                  std::size_t count, const std::function<void(const Files&)>& check);

}  // namespace CrashedDisk
