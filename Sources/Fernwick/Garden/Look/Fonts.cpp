#include "Garden/Look/Fonts.hpp"

#include <QChar>
#include <QFontDatabase>
#include <QLocale>
#include <QRawFont>
#include <QResource>
#include <algorithm>

namespace Garden {

namespace {

struct Cut {
    QString family;
    QString style;
};

// Names are asked of the loaded file: distributions rename and link families freely. The style is
// named too, because the same family installed on the desktop may hold more cuts of one weight.
Cut load(const char* file) {
    // Stored uncompressed, so the font engine reads the program's own pages without a copy.
    const QByteArray data =
        QResource(QStringLiteral(":/fonts/") + QLatin1String(file)).uncompressedData();
    const int id = QFontDatabase::addApplicationFontFromData(data);
    constexpr double anySize = 16;
    return {QFontDatabase::applicationFontFamilies(id).value(0),
            QRawFont(data, anySize).styleName()};
}

// The faces that go best with ours in the scripts ours lack, where the desktop has them.
QStringList companions(QFont::StyleHint design) {
    const QString style =
        design == QFont::Serif ? QStringLiteral("Noto Serif") : QStringLiteral("Noto Sans");
    const auto chinese = [&](const char* country) -> QStringList {
        // The same letter is drawn otherwise in each country. Without the last one, marks and
        // strokes would be picked from whatever font has them, also from other scripts' fonts.
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
            return chinese("JP");
        case QLocale::Korean:
            return chinese("KR");
        case QLocale::Chinese:
            return chinese("SC");
        case QLocale::Ukrainian:
            return {style};
        default:
            return {};
    }
}

QFont make(const Cut& cut, QFont::StyleHint design, double size, QFont::Weight weight) {
    QFont font(QStringList(cut.family) + companions(design));
    font.setStyleHint(design);
    font.setStyleName(cut.style);
    font.setPixelSize(qRound(size));
    font.setWeight(weight);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::PreferAntialias);
    return font;
}

bool joins(QChar::Script script) {
    return script == QChar::Script_Arabic || script == QChar::Script_Devanagari;
}

bool hasManyStrokes(QChar::Script script) {
    return joins(script) || script == QChar::Script_Han || script == QChar::Script_Hangul ||
           script == QChar::Script_Hiragana || script == QChar::Script_Katakana;
}

// In logical pixels.
constexpr int smallestOfManyStrokes = 11;

}  // namespace

QFont sans(double size, QFont::Weight weight, double tracking) {
    static const Cut regular = load("Inter-Regular.otf");
    static const Cut medium = load("Inter-Medium.otf");
    static const Cut semiBold = load("Inter-SemiBold.otf");
    const Cut& cut = weight >= QFont::DemiBold ? semiBold
                     : weight == QFont::Medium ? medium
                                               : regular;
    QFont font = make(cut, QFont::SansSerif, size, weight);
    if (tracking != 0) {
        font.setLetterSpacing(QFont::AbsoluteSpacing, tracking);
    }
    return font;
}

QFont serif(double size, QFont::Weight weight) {
    static const Cut light = load("ElstobD-Light.otf");
    static const Cut regular = load("ElstobD-Regular.otf");
    return make(weight <= QFont::Light ? light : regular, QFont::Serif, size, weight);
}

QFont mono(double size, QFont::Weight weight) {
    static const Cut light = load("JetBrainsMono-Light.ttf");
    static const Cut regular = load("JetBrainsMono-Regular.ttf");
    return make(weight <= QFont::Light ? light : regular, QFont::Monospace, size, weight);
}

QFont fittedTo(const QString& text, const QFont& font) {
    const auto anyOf = [&](bool (*property)(QChar::Script)) {
        const auto letters = text.toUcs4();
        return std::ranges::any_of(
            letters, [=](char32_t letter) { return property(QChar::script(letter)); });
    };
    QFont fitted = font;
    if (anyOf(joins)) {
        fitted.setLetterSpacing(QFont::AbsoluteSpacing, 0);
    }
    if (anyOf(hasManyStrokes)) {
        fitted.setPixelSize(std::max(font.pixelSize(), smallestOfManyStrokes));
    }
    return fitted;
}

}  // namespace Garden
