#include "Garden/Look/Fonts.hpp"

#include <QChar>
#include <QFontDatabase>
#include <QLocale>
#include <QRawFont>
#include <QResource>
#include <algorithm>

namespace Garden {

namespace {

// One font file. The names are read from it, as they vary between distributions. The style name is
// needed because the same family may also be installed with several styles of one weight.
struct Face {
    QString family;
    QString style;
};

Face load(const char* file) {
    // Stored uncompressed, so FreeType reads the mapped executable without a copy.
    const QByteArray data =
        QResource(QStringLiteral(":/fonts/") + QLatin1String(file)).uncompressedData();
    const int id = QFontDatabase::addApplicationFontFromData(data);
    constexpr double anySize = 16;
    return {QFontDatabase::applicationFontFamilies(id).value(0),
            QRawFont(data, anySize).styleName()};
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

QFont make(const Face& face, QFont::StyleHint design, double size, QFont::Weight weight) {
    QFont font(QStringList(face.family) + fallbacks(design));
    font.setStyleHint(design);
    font.setStyleName(face.style);
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

QFont sans(double size, QFont::Weight weight, double tracking) {
    static const Face regular = load("Inter-Regular.otf");
    static const Face medium = load("Inter-Medium.otf");
    static const Face semiBold = load("Inter-SemiBold.otf");
    const Face& face = weight >= QFont::DemiBold ? semiBold
                       : weight == QFont::Medium ? medium
                                                 : regular;
    QFont font = make(face, QFont::SansSerif, size, weight);
    if (tracking != 0) {
        font.setLetterSpacing(QFont::AbsoluteSpacing, tracking);
    }
    return font;
}

QFont serif(double size, QFont::Weight weight) {
    static const Face extraLight = load("ElstobD-ExtraLight.otf");
    // The cut for large sizes. The regular cut has no kerning before the full stop.
    static const Face regular = load("ElstobD-18pt.otf");
    return make(weight <= QFont::ExtraLight ? extraLight : regular, QFont::Serif, size, weight);
}

QFont mono(double size, QFont::Weight weight) {
    static const Face light = load("JetBrainsMono-Light.ttf");
    static const Face regular = load("JetBrainsMono-Regular.ttf");
    return make(weight <= QFont::Light ? light : regular, QFont::Monospace, size, weight);
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
