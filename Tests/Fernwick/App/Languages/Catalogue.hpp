#pragma once

#include <QFile>
#include <QString>
#include <QXmlStreamReader>
#include <ostream>
#include <stdexcept>
#include <vector>

/// An entry of a .ts file.
struct CatalogueEntry {
    QString context;
    QString source;
    QString translation;
    /// "unfinished", "vanished" or "obsolete"; empty for a finished translation.
    QString state;
};

inline std::ostream& operator<<(std::ostream& out, const CatalogueEntry& entry) {
    return out << entry.context.toStdString() << ": \"" << entry.source.toStdString() << "\" as \""
               << entry.translation.toStdString() << '"';
}

/// All entries of the .ts file at `path`, in file order. Throws if it cannot be read.
[[nodiscard]] inline std::vector<CatalogueEntry> readCatalogue(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error("no catalogue at " + path.toStdString());
    }
    std::vector<CatalogueEntry> entries;
    QString context;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == u"name") {
            context = xml.readElementText();
        } else if (xml.name() == u"source") {
            entries.push_back({context, xml.readElementText(), {}, {}});
        } else if (xml.name() == u"translation") {
            entries.back().state = xml.attributes().value(QStringLiteral("type")).toString();
            entries.back().translation = xml.readElementText();
        }
    }
    if (xml.hasError()) {
        throw std::runtime_error(path.toStdString() + ": " + xml.errorString().toStdString());
    }
    return entries;
}
