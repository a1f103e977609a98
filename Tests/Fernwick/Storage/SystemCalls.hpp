#pragma once

#include <cstddef>
#include <string>
#include <vector>

/// Stands between the test program and the system: the calls that touch files can be listed and
/// made to fail one by one, as no real disk does on demand. Only calls by this thread, between
/// `watch` and `unwatch`, are counted; all others pass.
namespace SystemCalls {

enum class Fate {
    passes,
    fails,      ///< with the error given; does nothing
    isShort,    ///< writes half of what it should; a call that does not write passes
    endsUs,     ///< the process is gone before the call does anything
    endsAfter,  ///< the process is gone once the call is done
};

/// What happens to call number `call`, counted from 0, and if it `lasts` to all later ones
/// of the same name.
struct Plan {
    std::size_t call = 0;
    Fate fate = Fate::passes;
    int error = 0;
    bool lasts = false;
};

void watch(const Plan& plan);

/// The names of the calls that were made, in order.
std::vector<std::string> unwatch();

}  // namespace SystemCalls
