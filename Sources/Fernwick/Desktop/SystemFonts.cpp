#include "Desktop/SystemFonts.hpp"

#include <fontconfig/fontconfig.h>

#include <string>

namespace Desktop {

namespace {

// Makes Qt use the rules of the user and, after them, `rule`.
void install(const std::string& rule) {
    FcConfig* const config = FcInitLoadConfig();
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
    install("<reset-dirs/>");
}

void takeInSystemFonts(std::span<const char* const> leftOut) {
    std::string patterns;
    for (const char* family : leftOut) {
        patterns.append("<pattern><patelt name='family'><string>")
            .append(family)
            .append("</string></patelt></pattern>");
    }
    install("<selectfont><rejectfont>" + patterns + "</rejectfont></selectfont>");
}

}  // namespace Desktop
