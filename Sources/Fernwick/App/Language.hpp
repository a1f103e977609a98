#pragma once

#include <QString>
#include <QStringList>
#include <QTranslator>

/// The language that the game speaks while this lives: its texts, and the side that lines and rows
/// begin at. To be made before the first text is.
class Language {
public:
    /// The languages the game has a catalogue of, as locale names ("de", "pt_BR"). English, the
    /// language of the source, has none.
    [[nodiscard]] static QStringList translated();

    /// The name of the catalogue that serves `wanted` best: locale names, the dearest first, such
    /// as those of `QLocale::uiLanguages()`. Empty for English, also when no other is known.
    [[nodiscard]] static QString bestFor(const QStringList& wanted);

    /// `name` is one of `translated()`, or empty for English.
    explicit Language(const QString& name);

private:
    QTranslator texts_;
};
