#pragma once

#include <QByteArray>
#include <QCborArray>
#include <QCborMap>
#include <QCborValue>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <vector>

inline void writeFile(const std::filesystem::path& path, const QByteArray& content) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary).write(content.constData(), content.size());
}

inline QByteArray readFile(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return QByteArray::fromStdString(std::string(std::istreambuf_iterator<char>(file), {}));
}

/// Keys and values in CBOR diagnostic notation, sorted.
using Settings = std::map<std::string, std::string>;

inline Settings settingsOf(const QCborMap& map) {
    Settings settings;
    for (const auto& [key, value] : map) {
        settings.emplace(QCborValue(key).toDiagnosticNotation().toStdString(),
                         QCborValue(value).toDiagnosticNotation().toStdString());
    }
    return settings;
}

/// The settings in a file, read with QCborValue instead of the code under test.
inline Settings settingsIn(const std::filesystem::path& path) {
    return settingsOf(QCborValue::fromCbor(readFile(path)).toMap());
}

/// The sorted names in `folder` that start with `prefix`.
inline std::vector<std::string> namesIn(const std::filesystem::path& folder,
                                        const std::string& prefix = "") {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (std::string name = entry.path().filename(); name.starts_with(prefix)) {
            names.push_back(std::move(name));
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}
