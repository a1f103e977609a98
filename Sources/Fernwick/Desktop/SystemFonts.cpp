#include "Desktop/SystemFonts.hpp"

#include <fontconfig/fontconfig.h>

namespace Desktop {

namespace {

// Makes `config` the one that Qt uses. Null if fontconfig could not load one.
void install(FcConfig* config) {
    if (config != nullptr) {
        FcConfigSetCurrent(config);
        FcConfigDestroy(config);
    }
}

}  // namespace

void leaveOutSystemFonts() {
    // Removes the folders to search for fonts.
    constexpr const char* noFolders = "<fontconfig><reset-dirs/></fontconfig>";
    FcConfig* const rules = FcInitLoadConfig();
    if (rules != nullptr) {
        FcConfigParseAndLoadFromMemory(rules, reinterpret_cast<const FcChar8*>(noFolders), FcFalse);
    }
    install(rules);
}

void takeInSystemFonts() {
    install(FcInitLoadConfigAndFonts());
}

}  // namespace Desktop
