#include "Desktop/QtMessages.hpp"

#include <QByteArray>
#include <QLoggingCategory>
#include <QString>
#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <utility>
#include <vector>

namespace Desktop {

namespace {

/// qt.xkb.compose: there are no compose sequences for the locale.
/// qt.qpa.plugin: one platform plugin failed, and the next one is tried.
constexpr const char* rules =
    "qt.xkb.compose.warning=false\n"
    "qt.qpa.plugin.info=false\n";

/// The runtime folder is missing or has unusual permissions; a font lacks a script that another
/// font provides (since Qt 6.5 without the two spaces); the locale is not UTF-8, and Qt uses one
/// that is; a screen reader asks about an object that no longer exists.
constexpr std::array harmlessPrefixes{
    QLatin1String("QStandardPaths: "),
    QLatin1String("  OpenType support missing for "),
    QLatin1String("OpenType support missing for "),
    QLatin1String("Detected locale "),
    QLatin1String("Could not find accessible on path: "),
};

/// Messages about one of the displays that Qt tries.
constexpr QLatin1String waylandFailure("Failed to create wl_display");
constexpr QLatin1String xServerFailure("could not connect to display");
constexpr QLatin1String missingPlugin("Could not find the Qt platform plugin");
constexpr QLatin1String xServerHint("From 6.5.0, xcb-cursor0 or libxcb-cursor0 is needed");
constexpr std::array displayFailures{waylandFailure, xServerFailure, missingPlugin, xServerHint};

/// After these messages Qt calls _exit().
constexpr std::array waylandLosses{
    QLatin1String("The Wayland connection broke"),
    QLatin1String("The Wayland connection experienced a fatal error"),
};

/// Part of Qt's last message when it has tried all of them.
constexpr QLatin1String noDisplay("no Qt platform plugin could be initialized");

struct Message {
    QtMsgType type;
    QByteArray category;
    QString text;
};

QtMessageHandler defaultHandler = nullptr;
void (*beforeWaylandExit)() = nullptr;
bool showsEverything = false;
bool isOpeningDisplay = false;
std::vector<Message> held;
/// The variables that choose the display, with their values.
QByteArray displays;

bool startsWithOneOf(const auto& prefixes, const QString& message) {
    return std::ranges::any_of(prefixes,
                               [&](QLatin1String prefix) { return message.startsWith(prefix); });
}

void show(const Message& message) {
    const QMessageLogContext context(nullptr, 0, nullptr, message.category.constData());
    defaultHandler(message.type, context, message.text);
}

QByteArray withValue(const char* variable) {
    const QByteArray value = qgetenv(variable);
    return variable + (value.isNull() ? QByteArray(" is not set") : "=\"" + value + '"');
}

QByteArray displayVariables() {
    const QByteArray platform =
        qEnvironmentVariableIsSet("QT_QPA_PLATFORM") ? withValue("QT_QPA_PLATFORM") + ", " : "";
    return platform + withValue("DISPLAY") + ", " + withValue("WAYLAND_DISPLAY");
}

[[noreturn]] void exitWithoutDisplay() {
    const bool hasTriedOne = std::ranges::any_of(
        held, [](const Message& message) { return !message.text.startsWith(missingPlugin); });
    std::fprintf(stderr, "fernwick: cannot %s: %s\n",
                 held.empty() || hasTriedOne ? "open a display" : "find the Qt platform plugin",
                 displays.constData());
    // Not exit(): Qt is in the middle of making the QApplication.
    std::_Exit(EXIT_FAILURE);
}

void filter(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (type == QtFatalMsg) {
        if (message.contains(noDisplay)) {
            exitWithoutDisplay();
        }
        std::ranges::for_each(std::exchange(held, {}), show);
    }
    if (!showsEverything && isOpeningDisplay && startsWithOneOf(displayFailures, message)) {
        held.push_back({type, context.category, message});
    } else if (showsEverything || !startsWithOneOf(harmlessPrefixes, message)) {
        defaultHandler(type, context, message);
    }
    if (startsWithOneOf(waylandLosses, message)) {
        // Each thread that uses the connection gets here, and the first to return ends the process.
        static std::mutex mutex;
        const std::lock_guard lock(mutex);
        if (beforeWaylandExit != nullptr) {
            beforeWaylandExit();
        }
    }
}

}  // namespace

void filterQtMessages() {
    QLoggingCategory::setFilterRules(QString::fromLatin1(rules));
    showsEverything = qEnvironmentVariableIsSet("QT_LOGGING_RULES");
    isOpeningDisplay = true;
    displays = displayVariables();
    defaultHandler = qInstallMessageHandler(filter);
}

void showHeldQtMessages() {
    isOpeningDisplay = false;
    for (const Message& message : std::exchange(held, {})) {
        if (!message.text.startsWith(waylandFailure)) {
            show(message);
        }
    }
}

void callBeforeWaylandExit(void (*function)()) {
    beforeWaylandExit = function;
}

}  // namespace Desktop
