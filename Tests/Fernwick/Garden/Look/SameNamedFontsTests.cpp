#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFontDatabase>
#include <QRawFont>
#include <QtEndian>
#include <vector>

#include "Garden/Look/Fonts.hpp"
#include "Support/EnvironmentVariable.hpp"
#include "Support/FileContent.hpp"
#include "Support/TemporaryFolder.hpp"

namespace {

// A version of the font with the same names and glyphs of twice the size.
QByteArray enlarged(QByteArray font) {
    // The table directory starts after 12 bytes and has 16 for each table.
    const qsizetype entry = font.indexOf("head", 12);
    const auto head = qFromBigEndian<quint32>(font.constData() + entry + 8);
    char* const unitsPerEm = font.data() + head + 18;
    qToBigEndian(quint16(qFromBigEndian<quint16>(unitsPerEm) / 2), unitsPerEm);
    return font;
}

/// On a system that has another version of each embedded font installed. Each test needs a process
/// of its own: fonts are added once.
class SameNamedFonts : public ::testing::Test {
protected:
    SameNamedFonts() {
        writeFile(file_, "<fontconfig><include>/etc/fonts/fonts.conf</include><dir>" +
                             QByteArray::fromStdString(folder_.path() / "fonts") +
                             "</dir></fontconfig>");
        QDirIterator files(QStringLiteral(":/fonts"));
        while (files.hasNext()) {
            QFile file(files.next());
            EXPECT_TRUE(file.open(QIODevice::ReadOnly));
            writeFile(folder_.path() / "fonts" / files.fileName().toStdString(),
                      enlarged(file.readAll()));
            ++count_;
        }
        EXPECT_EQ(count_, 7);
    }

    ~SameNamedFonts() override { QLocale::setDefault(QLocale::c()); }

    /// Checks that all texts are drawn with the fonts of the program.
    static void expectEmbedded() {
        for (const auto& [name, font, unitsPerEm] : std::vector<Cut>{
                 {"Inter Regular", Garden::sans(13, QFont::Normal), 2816},
                 {"Inter Medium", Garden::sans(13, QFont::Medium), 2816},
                 {"Inter SemiBold", Garden::sans(13, QFont::DemiBold), 2816},
                 {"Elstob ExtraLight", Garden::serif(27, QFont::ExtraLight), 1000},
                 {"Elstob 18pt", Garden::serif(27, QFont::Normal), 1000},
                 {"JetBrains Mono Light", Garden::mono(33, QFont::Light), 1000},
                 {"JetBrains Mono Regular", Garden::mono(33, QFont::Normal), 1000},
             }) {
            EXPECT_EQ(QRawFont::fromFont(font).unitsPerEm(), unitsPerEm) << name;
        }
    }

    static void expectSystemFonts() {
        EXPECT_TRUE(QFontDatabase::hasFamily(QStringLiteral("Noto Sans")));
    }

private:
    struct Cut {
        const char* name;
        QFont font;
        double unitsPerEm;
    };

    TemporaryFolder folder_;
    std::filesystem::path file_ = folder_.path() / "fonts.conf";
    EnvironmentVariable variable_{"FONTCONFIG_FILE", file_.c_str()};
    int count_ = 0;
};

}  // namespace

TEST_F(SameNamedFonts, areNotUsedBeforeTheSystemFontsAreTakenIn) {
    expectEmbedded();
}

TEST_F(SameNamedFonts, areNotUsedAfterTheSystemFontsAreTakenIn) {
    expectEmbedded();

    Garden::provideSystemFonts();

    expectSystemFonts();
    expectEmbedded();
}

TEST_F(SameNamedFonts, areNotUsedInALanguageThatNeedsSystemFontsAtOnce) {
    QLocale::setDefault(QLocale::Ukrainian);

    expectEmbedded();
    expectSystemFonts();
}
