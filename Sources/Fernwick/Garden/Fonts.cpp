#include "Garden/Fonts.hpp"

#include <QFontDatabase>
#include <QRawFont>
#include <QResource>

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

QFont make(const Cut& cut, double size, QFont::Weight weight) {
    QFont font(cut.family);
    font.setStyleName(cut.style);
    font.setPixelSize(qRound(size));
    font.setWeight(weight);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::PreferAntialias);
    return font;
}

}  // namespace

QFont sans(double size, QFont::Weight weight, double tracking) {
    static const Cut regular = load("Inter-Regular.otf");
    static const Cut medium = load("Inter-Medium.otf");
    static const Cut semiBold = load("Inter-SemiBold.otf");
    const Cut& cut = weight >= QFont::DemiBold ? semiBold
                     : weight == QFont::Medium ? medium
                                               : regular;
    QFont font = make(cut, size, weight);
    if (tracking != 0) {
        font.setLetterSpacing(QFont::AbsoluteSpacing, tracking);
    }
    return font;
}

QFont serif(double size, QFont::Weight weight) {
    static const Cut light = load("ElstobD-Light.otf");
    static const Cut regular = load("ElstobD-Regular.otf");
    return make(weight <= QFont::Light ? light : regular, size, weight);
}

QFont mono(double size, QFont::Weight weight) {
    static const Cut light = load("JetBrainsMono-Light.ttf");
    static const Cut regular = load("JetBrainsMono-Regular.ttf");
    return make(weight <= QFont::Light ? light : regular, size, weight);
}

}  // namespace Garden
