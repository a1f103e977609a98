#include "MainWindow/ToolkitMessages.hpp"

#include <QByteArray>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <QString>
#include <QtGlobal>
#include <algorithm>
#include <array>
#include <cstdio>

namespace {

constexpr const char* languageOfFonts = "FC_LANG";
constexpr std::array askForMessages{"QT_LOGGING_RULES", "QT_LOGGING_CONF", "QT_DEBUG_PLUGINS"};

void sayLastWords(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (type == QtFatalMsg) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(message));
    }
}

/// Of the variables that name a language, the one that counts.
QString nameOfLanguage() {
    for (const char* name : {languageOfFonts, "LC_ALL", "LC_CTYPE", "LANG"}) {
        if (!qEnvironmentVariableIsEmpty(name)) {
            return qEnvironmentVariable(name);
        }
    }
    return {};
}

/// The library that finds the fonts complains of names it cannot read, such as the bare "UTF-8"
/// that some machines hand to those they log in to, and takes English. This has it take English at
/// once.
void keepFontsQuiet() {
    const QRegularExpression readable(
        QStringLiteral("^(C|C[.]UTF-?8|POSIX|[a-z]{2,3}(_[a-z0-9]{2,3})?([.@].*)?)?$"),
        QRegularExpression::CaseInsensitiveOption);
    if (!readable.match(nameOfLanguage()).hasMatch()) {
        qputenv(languageOfFonts, "en");
    }
}

}  // namespace

void keepToolkitQuiet() {
    keepFontsQuiet();
    // What variables say goes before these rules.
    QLoggingCategory::setFilterRules(QStringLiteral("*.warning=false\n*.critical=false"));
    // Some messages are of no category, and heed no rules.
    if (std::ranges::none_of(askForMessages, qEnvironmentVariableIsSet)) {
        qInstallMessageHandler(sayLastWords);
    }
}
