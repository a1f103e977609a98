#pragma once

#include <QLoggingCategory>

namespace Sound {

/// The category "fernwick.sound". Prints only when QT_LOGGING_RULES enables it.
inline Q_LOGGING_CATEGORY(soundLog, "fernwick.sound", QtFatalMsg)

}  // namespace Sound
