#include "Desktop/QtMessages.hpp"

#include <QLoggingCategory>
#include <QString>
#include <QtGlobal>
#include <algorithm>
#include <array>
#include <cstdio>

namespace {

constexpr std::array askForMessages{"QT_LOGGING_RULES", "QT_LOGGING_CONF", "QT_DEBUG_PLUGINS"};

void sayLastWords(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (type == QtFatalMsg) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(message));
    }
}

}  // namespace

void keepToolkitQuiet() {
    // What variables say goes before these rules.
    QLoggingCategory::setFilterRules(QStringLiteral("*.warning=false\n*.critical=false"));
    // Some messages are of no category, and heed no rules.
    if (std::ranges::none_of(askForMessages, qEnvironmentVariableIsSet)) {
        qInstallMessageHandler(sayLastWords);
    }
}
