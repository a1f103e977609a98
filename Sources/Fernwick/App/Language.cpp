#include "App/Language.hpp"

#include <QDir>
#include <QGuiApplication>
#include <QLocale>

namespace {

const QString catalogueFolder = QStringLiteral(":/translations");
const QString catalogueStem = QStringLiteral("fernwick_");

// Qt's own texts that the game shows: the context menu of the name field, key names in menus, and
// accessible actions of buttons. Qt looks them up under these contexts.
[[maybe_unused]] constexpr const char* qtTexts[] = {
    //: The menu of a text field, worded as the desktops of the language do.
    QT_TRANSLATE_NOOP("QLineEdit", "&Undo"),
    QT_TRANSLATE_NOOP("QLineEdit", "&Redo"),
    QT_TRANSLATE_NOOP("QLineEdit", "Cu&t"),
    QT_TRANSLATE_NOOP("QLineEdit", "&Copy"),
    QT_TRANSLATE_NOOP("QLineEdit", "&Paste"),
    QT_TRANSLATE_NOOP("QLineEdit", "Delete"),
    QT_TRANSLATE_NOOP("QLineEdit", "Select All"),
    //: Keys, as they are written on the keyboards of the language. "Meta" is the key with a logo
    //: next to Alt, which Linux desktops call "Super".
    QT_TRANSLATE_NOOP("QShortcut", "Ctrl"),
    QT_TRANSLATE_NOOP("QShortcut", "Shift"),
    QT_TRANSLATE_NOOP("QShortcut", "Meta"),
    QT_TRANSLATE_NOOP("QShortcut", "Space"),
    QT_TRANSLATE_NOOP("QShortcut", "Esc"),
    QT_TRANSLATE_NOOP("QShortcut", "Tab"),
    QT_TRANSLATE_NOOP("QShortcut", "Return"),
    //: What can be done with a button, and what that means; read aloud.
    QT_TRANSLATE_NOOP("QAccessibleActionInterface", "Press"),
    QT_TRANSLATE_NOOP("QAccessibleActionInterface", "Triggers the action"),
};

/// Qt's English name of a key that keyboards and desktops call otherwise.
class EnglishKeyNames : public QTranslator {
public:
    [[nodiscard]] QString translate(const char* context, const char* source, const char*,
                                    int) const override {
        return qstrcmp(context, "QShortcut") == 0 && qstrcmp(source, "Meta") == 0
                   ? QStringLiteral("Super")
                   : QString();
    }

    [[nodiscard]] bool isEmpty() const override { return false; }
};

// Readers understand another country's variant of their language, but not another script.
bool understands(const QLocale& reader, const QLocale& text) {
    return reader.language() == text.language() && reader.script() == text.script();
}

}  // namespace

QStringList Language::translated() {
    QStringList names;
    for (const QString& file : QDir(catalogueFolder).entryList()) {
        names.append(file.section(u'.', 0, 0).mid(catalogueStem.size()));
    }
    return names;
}

QString Language::bestFor(const QStringList& wanted) {
    const QStringList known = translated();
    for (const QString& name : wanted) {
        const QLocale reader(name);
        if (reader.language() == QLocale::English) {
            return {};
        }
        for (const QString& catalogue : known) {
            if (understands(reader, QLocale(catalogue))) {
                return catalogue;
            }
        }
    }
    return {};
}

Language::Language(const QString& name) {
    if (name.isEmpty()) {
        texts_ = std::make_unique<EnglishKeyNames>();
    } else {
        texts_ = std::make_unique<QTranslator>();
        static_cast<void>(texts_->load(catalogueStem + name, catalogueFolder));
    }
    QCoreApplication::installTranslator(texts_.get());
    const QLocale locale(name.isEmpty() ? QStringLiteral("en") : name);
    // Garden's fonts choose their fallback families by the default locale.
    QLocale::setDefault(locale);
    QGuiApplication::setLayoutDirection(locale.textDirection());
}
