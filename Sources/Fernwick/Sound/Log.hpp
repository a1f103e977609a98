#pragma once

#include <QLoggingCategory>

namespace Sound {

/// The category "fernwick.sound". Prints only when QT_LOGGING_RULES enables it.
Q_DECLARE_LOGGING_CATEGORY(soundLog)

}  // namespace Sound
