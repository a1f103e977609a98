#include <QCborValue>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "Fernwick/Storage/StoreNow.hpp"
#include "Require.hpp"
#include "Storage/PreferencesFile.hpp"
#include "Support/TemporaryFolder.hpp"

using namespace Qt::StringLiterals;
using SnakeCore::require;
using Storage::PreferencesDocument;
using Storage::PreferencesFile;

namespace fs = std::filesystem;

namespace {

/// Point TMPDIR to a tmpfs: every input makes PreferencesFile fsync a file and its folder.
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

/// Reads and removes the copy that was made of an unreadable file.
std::string takeBackup(const fs::path& path) {
    fs::path backup = path;
    backup += ".unreadable-1";
    std::string content = contentOf(backup);
    fs::remove(backup);
    return content;
}

/// Reads every setting of the game as every type.
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

/// Opens a file with arbitrary content and stores a value in it. The other settings are kept; an
/// unreadable file is copied first, byte for byte.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const fs::path& path = fileOfThisProcess();
    const std::string content(reinterpret_cast<const char*>(data), size);
    write(path, content);
    const auto stored = PreferencesDocument::read(QByteArray::fromStdString(content));

    PreferencesFile preferences(path);
    readEverySetting(preferences);
    require(contentOf(path) == content, "reading does not change the file");
    if (!storeNow(preferences, u"player-name"_s, u"Pip"_s)) {
        require(contentOf(path) == content, "a failed store does not change the file");
        return 0;
    }

    require(PreferencesFile(path).text(u"player-name"_s) == u"Pip"_s,
            "the stored value is read back");
    PreferencesDocument wanted = stored.value_or(PreferencesDocument());
    wanted.insert(u"player-name"_s, u"Pip"_s);
    require(PreferencesDocument::read(QByteArray::fromStdString(contentOf(path))) == wanted,
            "all other settings are kept");
    require(takeBackup(path) == (stored ? std::string() : content),
            "an unreadable file is copied, a readable one is not");
    return 0;
}
