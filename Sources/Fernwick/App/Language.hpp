#pragma once

#include <QString>
#include <QStringList>
#include <QTranslator>
#include <memory>

/// Installs a language for the lifetime of the object: the translated texts, the default locale and
/// the layout direction. Make it before the first widget.
class Language {
public:
    /// The locale names of the catalogues ("de", "pt_BR"). English, the language of the sources,
    /// has none.
    [[nodiscard]] static QStringList translated();

    /// The catalogue for the first of the `wanted` locale names (as `QLocale::uiLanguages()` lists
    /// them) that there is one for. Empty for English and when there is none.
    [[nodiscard]] static QString bestFor(const QStringList& wanted);

    /// `name` is one of `translated()`, or empty for English.
    explicit Language(const QString& name);

private:
    std::unique_ptr<QTranslator> texts_;
};
