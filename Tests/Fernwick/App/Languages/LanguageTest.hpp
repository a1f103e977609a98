#pragma once

#include <string>

#include "App/Language.hpp"
#include "Fernwick/Window/WindowTest.hpp"

inline const QSize smallestWindow(820, 760);

/// The smallest window, out of full screen. Its texts are in the language that is installed when it
/// is constructed; see `InstalledLanguage`.
class LanguageTest : public WindowTest {
protected:
    LanguageTest() {
        leaveFullScreen();
        window.resize(smallestWindow);
        processEvents();
    }
};

/// Installs a language. A fixture inherits it before `LanguageTest`, so that it is constructed
/// first.
struct InstalledLanguage {
    explicit InstalledLanguage(const QString& name) : language(name) {}

    Language language;
};

/// All languages but English.
inline const QStringList& allLanguages() {
    static const QStringList names = Language::translated();
    return names;
}

inline std::string languageName(const ::testing::TestParamInfo<QString>& language) {
    return language.param.toStdString();
}

// GoogleTest prints the parameter of a failed test with this.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << text.toStdString();
}
