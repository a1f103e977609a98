#include <QCborValue>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "Require.hpp"
#include "Storage/PreferencesFile.hpp"
#include "Support/TemporaryFolder.hpp"

using namespace Qt::StringLiterals;
using SnakeCore::require;

namespace fs = std::filesystem;

namespace {

/// In memory where TMPDIR says so: each input makes the store flush a file and its folder.
const fs::path& fileOfThisProcess() {
    static const TemporaryFolder folder;
    static const fs::path file = folder.path() / "preferences.cbor";
    return file;
}

void write(const fs::path& path, const std::string& content) {
    std::ofstream(path, std::ios::binary | std::ios::trunc) << content;
}

std::string contentOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The content that was set aside under another name; it is gone afterwards.
std::string takeSetAside(const fs::path& path) {
    fs::path aside = path;
    aside += ".unreadable-1";
    std::string content = contentOf(aside);
    fs::remove(aside);
    return content;
}

/// All the settings that the game reads, so that reading each of them is tried on any content.
void readEverySetting(const PreferencesFile& preferences) {
    for (const QString& key : {u"high-scores-v1"_s, u"player-name"_s, u"sound"_s, u"best-Gentle"_s,
                               u"best-Classic"_s, u"best-Swift"_s}) {
        static_cast<void>(preferences.bytes(key));
        static_cast<void>(preferences.text(key));
        static_cast<void>(preferences.boolean(key));
        static_cast<void>(preferences.integer(key));
    }
}

}  // namespace

/// Any content of the file can be started from and stored over. What could be read is kept beside
/// the new value, and what could not is set aside, to the byte.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const fs::path& path = fileOfThisProcess();
    const std::string content(reinterpret_cast<const char*>(data), size);
    write(path, content);
    const auto stored = PreferencesDocument::read(QByteArray::fromStdString(content));

    PreferencesFile preferences(path);
    readEverySetting(preferences);
    require(contentOf(path) == content, "reading changes nothing");
    if (!preferences.store(u"player-name"_s, u"Pip"_s)) {
        require(contentOf(path) == content, "a store that failed changes nothing");
        return 0;
    }

    require(PreferencesFile(path).text(u"player-name"_s) == u"Pip"_s, "the next start finds it");
    PreferencesDocument wanted = stored.value_or(PreferencesDocument());
    wanted.insert(u"player-name"_s, u"Pip"_s);
    require(PreferencesDocument::read(QByteArray::fromStdString(contentOf(path))) == wanted,
            "everything else that was stored is still there");
    require(takeSetAside(path) == (stored ? std::string() : content),
            "what could not be read is set aside");
    return 0;
}
