#include "App/CommandLine.hpp"

#include <getopt.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "App/ScoreExport.hpp"
#include "Storage/PreferencesFile.hpp"

namespace {

constexpr int usageError = 2;
/// What getopt_long() returns for --export-scores, which has no short form.
constexpr int exportOption = 256;

constexpr const char* help =
    R"(Usage: fernwick [OPTION]
Grow a snake in a night garden.

  -h, --help           display this help and exit
  -v, --version        output version information and exit
      --export-scores  print all saved scores as JSON and exit

Space starts a run and pauses it, the arrow keys or W A S D turn the snake,
F11 leaves full screen and Ctrl+Q quits. The manual page lists all keys.

Scores and settings are in $XDG_CONFIG_HOME/fernwick/preferences.cbor,
which is ~/.config/fernwick/preferences.cbor by default.
)";

/// Returns the exit status.
int print(const char* text) {
    return std::fputs(text, stdout) >= 0 && std::fflush(stdout) == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

/// Returns the exit status.
int printScores(const char* program) {
    const std::filesystem::path settings = Storage::PreferencesFile::defaultPath();
    if (const std::optional<std::string> table = exportScores(settings)) {
        return print(table->c_str());
    }
    std::fprintf(stderr, "%s: cannot read the scores in %s\n", program, settings.c_str());
    return EXIT_FAILURE;
}

}  // namespace

const char* programVersion() {
    return FERNWICK_VERSION;
}

std::optional<int> handleCommandLine(int argc, char* argv[]) {
    static constexpr std::array<option, 4> options{{
        {"help", no_argument, nullptr, 'h'},
        {"version", no_argument, nullptr, 'v'},
        {"export-scores", no_argument, nullptr, exportOption},
        {},
    }};
    switch (::getopt_long(argc, argv, "hv", options.data(), nullptr)) {
        case 'h':
            return print(help);
        case 'v':
            return print("Fernwick " FERNWICK_VERSION "\n");
        case exportOption:
            return printScores(argv[0]);
        case '?':  // getopt_long() has printed why.
            return usageError;
        default:
            break;
    }
    if (::optind < argc) {
        std::fprintf(stderr, "%s: unexpected argument '%s'\n", argv[0], argv[::optind]);
        return usageError;
    }
    return std::nullopt;
}
