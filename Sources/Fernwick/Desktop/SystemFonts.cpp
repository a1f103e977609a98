#include "Desktop/SystemFonts.hpp"

#include <fontconfig/fontconfig.h>

#include <cstdlib>
#include <filesystem>
#include <set>
#include <string>
#include <string_view>
#include <system_error>

namespace Desktop {

namespace {

// The rules for how glyphs are drawn, of the system and of the user. Nine tenths of the time that
// fontconfig takes for all rules go to the others: they choose among the fonts of the system. Files
// are told apart by their numbers, which /etc/fonts/conf.d/README explains.
FcConfig* loadDrawingRules() {
    for (const char* variable : {"FONTCONFIG_FILE", "FONTCONFIG_PATH", "FONTCONFIG_SYSROOT"}) {
        if (std::getenv(variable) != nullptr) {
            return FcInitLoadConfig();
        }
    }
    std::set<std::filesystem::path> files;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator("/etc/fonts/conf.d", error)) {
        const std::string name = entry.path().filename();
        // Rendering, options of fonts, files of the user and the administrator, synthesis.
        if (std::string_view("1259").find(name.front()) != std::string_view::npos &&
            name.ends_with(".conf")) {
            files.insert(entry.path());
        }
    }
    if (files.empty()) {
        return FcInitLoadConfig();
    }
    FcConfig* const config = FcConfigCreate();
    for (const std::filesystem::path& file : files) {
        FcConfigParseAndLoad(config, reinterpret_cast<const FcChar8*>(file.c_str()), FcFalse);
    }
    return config;
}

// Makes Qt use `config` with `rule` after its other rules.
void install(FcConfig* config, const std::string& rule) {
    if (config == nullptr) {
        return;
    }
    const std::string document = "<fontconfig>" + rule + "</fontconfig>";
    FcConfigParseAndLoadFromMemory(config, reinterpret_cast<const FcChar8*>(document.c_str()),
                                   FcFalse);
    // Looks for fonts in the folders of this configuration.
    FcConfigSetCurrent(config);
    FcConfigDestroy(config);
}

}  // namespace

void leaveOutSystemFonts() {
    // Removes the folders to search for fonts.
    install(loadDrawingRules(), "<reset-dirs/>");
}

void takeInSystemFonts(std::span<const char* const> leftOut) {
    std::string patterns;
    for (const char* family : leftOut) {
        patterns.append("<pattern><patelt name='family'><string>")
            .append(family)
            .append("</string></patelt></pattern>");
    }
    install(FcInitLoadConfig(),
            "<selectfont><rejectfont>" + patterns + "</rejectfont></selectfont>");
}

}  // namespace Desktop
