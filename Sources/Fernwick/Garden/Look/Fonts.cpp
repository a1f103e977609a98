#include "Garden/Look/Fonts.hpp"

#include <QChar>
#include <QFontDatabase>
#include <QLocale>
#include <QResource>
#include <algorithm>
#include <iterator>
#include <string_view>
#include <vector>

#include "Desktop/SystemFonts.hpp"

namespace Garden {

namespace {

/// A font file in the resource folder ":/fonts", and its names as fontconfig reads them.
struct EmbeddedFont {
    const char* file;
    const char* family;
    const char* style;
};

constexpr EmbeddedFont embeddedFonts[] = {
    {"Inter-Regular.otf", "Inter", "Regular"},
    {"Inter-Medium.otf", "Inter", "Medium"},
    {"Inter-SemiBold.otf", "Inter", "Semi Bold"},
    {"ElstobD-ExtraLight.otf", "ElstobD", "ExtraLight"},
    {"ElstobD-18pt.otf", "ElstobD", "18pt"},
    {"JetBrainsMono-Light.ttf", "JetBrains Mono", "Light"},
    {"JetBrainsMono-Regular.ttf", "JetBrains Mono", "Regular"},
};

consteval const EmbeddedFont& face(std::string_view file) {
    return *std::ranges::find(embeddedFonts, file, &EmbeddedFont::file);
}

// All at once, before the first font is used: for each one that is added, Qt discards every font
// that it has looked up.
void addEmbeddedFonts() {
    for (const EmbeddedFont& font : embeddedFonts) {
        // Stored uncompressed, so FreeType reads the mapped executable without a copy.
        QFontDatabase::addApplicationFontFromData(
            QResource(QStringLiteral(":/fonts/") + QLatin1String(font.file)).uncompressedData());
    }
}

// Fallback families that match the embedded fonts, for the script of the language.
QStringList fallbacks(QFont::StyleHint design) {
    const QString style =
        design == QFont::Serif ? QStringLiteral("Noto Serif") : QStringLiteral("Noto Sans");
    const auto cjk = [&](const char* country) -> QStringList {
        // Glyphs of the same character differ by country. WenQuanYi keeps punctuation and strokes
        // that the first lacks from coming from fonts for other scripts.
        return {style + QStringLiteral(" CJK ") + QLatin1String(country),
                QStringLiteral("WenQuanYi Zen Hei")};
    };
    switch (QLocale().language()) {
        case QLocale::Arabic:
            return {design == QFont::Serif ? QStringLiteral("Noto Naskh Arabic")
                                           : QStringLiteral("Noto Sans Arabic")};
        case QLocale::Hindi:
            return {style + QStringLiteral(" Devanagari")};
        case QLocale::Japanese:
            return cjk("JP");
        case QLocale::Korean:
            return cjk("KR");
        case QLocale::Chinese:
            return cjk("SC");
        case QLocale::Ukrainian:
            return {style};
        default:
            return {};
    }
}

// Which fonts Qt can use, from none to all of them.
enum class Supply { none, embedded, all };

Supply supply = Supply::none;

void load(Supply wanted) {
    if (wanted == Supply::all) {
        // Of two fonts with the same names, Qt may prefer the one of the system, which may look
        // different in another version.
        std::vector<const char*> families;
        std::ranges::transform(embeddedFonts, std::back_inserter(families), &EmbeddedFont::family);
        Desktop::takeInSystemFonts(families);
    } else {
        Desktop::leaveOutSystemFonts();
    }
}

void provide(Supply wanted) {
    if (wanted <= supply) {
        return;
    }
    load(wanted);
    if (supply != Supply::none) {
        // Makes Qt look up all fonts anew.
        QFontDatabase::removeAllApplicationFonts();
    }
    supply = wanted;
    addEmbeddedFonts();
}

// What the texts of the language need.
Supply neededSupply() {
    return fallbacks(QFont::SansSerif).isEmpty() ? Supply::embedded : Supply::all;
}

QFont make(const EmbeddedFont& face, QFont::StyleHint design, double size, QFont::Weight weight) {
    provide(neededSupply());
    QFont font(QStringList(QString::fromUtf8(face.family)) + fallbacks(design));
    font.setStyleHint(design);
    font.setStyleName(QString::fromUtf8(face.style));
    font.setPixelSize(qRound(size));
    font.setWeight(weight);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::PreferAntialias);
    return font;
}

bool isCursive(QChar::Script script) {
    return script == QChar::Script_Arabic || script == QChar::Script_Devanagari;
}

bool isComplex(QChar::Script script) {
    return isCursive(script) || script == QChar::Script_Han || script == QChar::Script_Hangul ||
           script == QChar::Script_Hiragana || script == QChar::Script_Katakana;
}

// The smallest legible size of complex glyphs, in points.
constexpr int minimumComplexSize = 11;

}  // namespace

void provideSystemFonts() {
    provide(Supply::all);
}

QFont sans(double size, QFont::Weight weight, double tracking) {
    const EmbeddedFont& cut = weight >= QFont::DemiBold ? face("Inter-SemiBold.otf")
                              : weight == QFont::Medium ? face("Inter-Medium.otf")
                                                        : face("Inter-Regular.otf");
    QFont font = make(cut, QFont::SansSerif, size, weight);
    if (tracking != 0) {
        font.setLetterSpacing(QFont::AbsoluteSpacing, tracking);
    }
    return font;
}

QFont serif(double size, QFont::Weight weight) {
    // Normal is the cut for large sizes: the regular cut has no kerning before the full stop.
    return make(
        weight <= QFont::ExtraLight ? face("ElstobD-ExtraLight.otf") : face("ElstobD-18pt.otf"),
        QFont::Serif, size, weight);
}

QFont mono(double size, QFont::Weight weight) {
    return make(weight <= QFont::Light ? face("JetBrainsMono-Light.ttf")
                                       : face("JetBrainsMono-Regular.ttf"),
                QFont::Monospace, size, weight);
}

QFont fittedTo(const QString& text, const QFont& font) {
    const auto anyOf = [&](bool (*property)(QChar::Script)) {
        const auto letters = text.toUcs4();
        return std::ranges::any_of(
            letters, [=](char32_t letter) { return property(QChar::script(letter)); });
    };
    QFont fitted = font;
    if (anyOf(isCursive)) {
        fitted.setLetterSpacing(QFont::AbsoluteSpacing, 0);
    }
    if (anyOf(isComplex)) {
        fitted.setPixelSize(std::max(font.pixelSize(), minimumComplexSize));
    }
    return fitted;
}

}  // namespace Garden
