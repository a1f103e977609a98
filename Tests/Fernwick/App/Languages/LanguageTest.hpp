#pragma once

#include <string>

#include "App/Language.hpp"
#include "Fernwick/Window/WindowTest.hpp"

inline const QSize smallestWindow(820, 760);

/// The smallest window, out of full screen, in a language that is spoken before any of it is made.
class LanguageTest : public WindowTest {
protected:
    LanguageTest() {
        leaveFullScreen();
        window.resize(smallestWindow);
        settle();
    }

    [[nodiscard]] QImage picture() { return window.grab().toImage(); }
};

/// Speaks a language; to be inherited before a `LanguageTest`.
struct Speaker {
    explicit Speaker(const QString& name) : language(name) {}

    Language language;
};

/// The languages other than English.
inline const QStringList& everyLanguage() {
    static const QStringList names = Language::translated();
    return names;
}

inline std::string nameOfLanguage(const ::testing::TestParamInfo<QString>& language) {
    return language.param.toStdString();
}

// Found by the test library, so that a failure tells the language.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << text.toStdString();
}
