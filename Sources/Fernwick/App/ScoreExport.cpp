#include "App/ScoreExport.hpp"

#include "Session/StoredScores.hpp"
#include "Storage/PreferencesFile.hpp"
#include "Storage/SettingsFile.hpp"

std::optional<std::string> exportScores(const std::filesystem::path& settings) {
    const auto document = Storage::SettingsFile::peek(settings);
    const auto table =
        document ? exportedScores(Storage::PreferencesFile(*document)) : std::nullopt;
    return table ? std::optional(*table + '\n') : std::nullopt;
}
