#include "Desktop/QtMessages.hpp"

#include <QLoggingCategory>
#include <QString>
#include <algorithm>
#include <array>

namespace Desktop {

namespace {

/// qt.xkb.compose: there are no compose sequences for the locale.
/// qt.qpa.plugin: one platform plugin failed, and the next one is tried.
constexpr const char* rules =
    "qt.xkb.compose.warning=false\n"
    "qt.qpa.plugin.info=false\n";

/// Messages without a category. The runtime folder is missing or has unusual permissions; a font
/// lacks a script that another font provides.
constexpr std::array harmlessPrefixes{
    QLatin1String("QStandardPaths: "),
    QLatin1String("  OpenType support missing for "),
};

/// Harmless if Qt then connects to the X server, and otherwise the reason why the program ends.
constexpr QLatin1String waylandFailurePrefix("Failed to create wl_display");

QtMessageHandler defaultHandler = nullptr;
QString waylandFailure;

void filter(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (message.startsWith(waylandFailurePrefix)) {
        waylandFailure = message;
        return;
    }
    if (type == QtFatalMsg && !waylandFailure.isEmpty()) {
        defaultHandler(QtWarningMsg, context, waylandFailure);
    }
    if (std::ranges::none_of(harmlessPrefixes,
                             [&](QLatin1String prefix) { return message.startsWith(prefix); })) {
        defaultHandler(type, context, message);
    }
}

}  // namespace

void filterQtMessages() {
    QLoggingCategory::setFilterRules(QString::fromLatin1(rules));
    if (!qEnvironmentVariableIsSet("QT_LOGGING_RULES")) {
        defaultHandler = qInstallMessageHandler(filter);
    }
}

}  // namespace Desktop
